// Submit on the player's own turn, and the ways a turn ends: a lost turn, a finished match, or the
// opponent's final guess still to come.
#include "catalogue/lists.h"
#include "challenge/challenge_answer.h"
#include "challenge/match.h"
#include "engine/scoring.h"
#include "engine/smart_mode.h"

namespace tessarine {

void Match::submitRow() {
  m_.showKeypad = true;
  clearTurnFlags();
  m_.repeatedGuess = m_.repeatedEntry = false;
  if (m_.activeRow() < 0) return acceptKey();
  if (m_.gameOver) return;
  m_.activeWord = rowWord(m_.board, m_.activeRow());
  if (m_.opponentGuess) return submitReceived();
  submitOwn();
}

void Match::submitOwn() {
  const std::string& word = m_.activeWord;
  if (m_.activeRow() == 0 && m_.numPlayer == 1) {
    // No strike on the opening guess: it is only tested, and never coloured.
    if (!validGuess()) {
      paintRow(TileColor::cyan);
      m_.invalidGuess = true;
      return;
    }
    m_.board.answer =
        Answer(adjustAnswerForFirstGuess(lists_, m_.gameType, m_.challengeIndex, word, m_.board.answer.text));
    m_.challengeKey = makeChallengeKey(m_.gameType, m_.challengeIndex);
    paintRow(TileColor::white);
    m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
    m_.board.activeRow = 1;
    m_.playerLastGuess = word;
    m_.challengeStarted = true;
    m_.invalidGuess = false;
    closeTurn();
    return;
  }
  if (rowHoldsFill(m_.board, m_.gameType, SignalMove::intentionalWalk)) {
    paintRow(TileColor::black);
    m_.smartModeError = m_.invalidGuess = false;
    m_.playerLastGuess = " ";
    return walkOut(false);
  }
  if (!validGuess()) {
    paintRow(TileColor::cyan);
    m_.invalidGuess = true;
    // The same wrong word twice running is one mistake, not two.
    if (word == m_.playerLastGuess) {
      m_.repeatedEntry = true;
    } else {
      m_.numStrikes += 1;
      m_.playerLastGuess = word;
    }
    if (m_.numStrikes >= 3) strikeOut();
    return;
  }
  m_.invalidGuess = false;
  if (word == m_.board.answer.text) {
    paintRow(TileColor::green);
    m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
    m_.youWonGame = true;
    // The walker keeps the right to a final guess; the one who struck out does not.
    if (m_.opponentWonGame || m_.opponentStruckOut || m_.opponentMissedFinalGuess) endMatch();
    m_.playerLastGuess = word;
    m_.youWalked = m_.youStruckOut = false;
    return closeTurn();
  }
  if (wasGuessUsed()) {
    paintRow(TileColor::purple);
    m_.repeatedGuess = true;
    return;
  }
  submitOwnGuess();
}

void Match::submitOwnGuess() {
  const std::string word = m_.activeWord;
  paintRow(TileColor::white);
  rescoreRowAbove();
  if (!passesSmartMode(m_.board)) {
    // Breaking the colour code costs a ball; four balls walk the player.
    m_.smartModeError = true;
    if (word == m_.playerLastGuess) {
      m_.repeatedEntry = true;
    } else {
      m_.numBalls += 1;
      m_.playerLastGuess = word;
    }
    if (m_.numBalls >= 4) {
      m_.smartModeError = false;
      walkOut(true);
    }
    return;
  }
  m_.smartModeError = false;
  m_.playerLastGuess = word;
  m_.youWalked = m_.youStruckOut = false;
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  if (m_.opponentWonGame) {
    // The final guess after the opponent found the answer, and it missed; the flag picks the
    // wording of the end screen only.
    scoreActiveRow();
    m_.youStruckOut = true;
    endMatch();
    return closeTurn();
  }
  m_.opponentGuess = true;
  scoreActiveRow();
  colourKeypad();
  if (m_.activeRow() == m_.lastRow()) {
    if (m_.opponentStruckOut || m_.opponentMissedFinalGuess) {
      endMatch();
    } else {
      m_.player8thGuess = word;
      m_.youMissedFinalGuess = true;
    }
  } else {
    m_.board.activeRow += 1;
    placeCursor();
    m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  }
  closeTurn();
}

void Match::walkOut(bool keepLastGuess) {
  if (!keepLastGuess) m_.playerLastGuess = " ";
  loseTurn(true);
}

void Match::strikeOut() {
  m_.playerLastGuess = " ";
  loseTurn(false);
}

// A walk and a strikeout end the turn the same way; two in a row give the opponent the match.
void Match::loseTurn(bool walked) {
  if (m_.youWalked || m_.youStruckOut) {
    (walked ? m_.youStruckOut : m_.youWalked) = false;
    m_.opponentWonGame = true;
  }
  m_.numStrikes = m_.numBalls = 0;
  (walked ? m_.youWalked : m_.youStruckOut) = true;
  if (m_.opponentWonGame || m_.opponentStruckOut || m_.opponentWalked || m_.opponentMissedFinalGuess)
    endMatch();
  m_.enteringGuess = false;
  m_.waitingForGuess = true;
  m_.showKeypad = false;
  if (m_.activeRow() == m_.lastRow() && !m_.gameOver) {
    if (m_.opponentStruckOut || m_.opponentMissedFinalGuess) {
      endMatch();
    } else {
      m_.player8thGuess = m_.playerLastGuess;
      m_.youMissedFinalGuess = true;
    }
  }
}

void Match::endOrGiveFinalGuess(bool afterFound) {
  const bool over =
      m_.youWonGame || m_.youStruckOut || m_.youMissedFinalGuess || (!afterFound && m_.youWalked);
  if (!over) {
    // The player's own turn follows on this row; a final guess when the opponent found the answer.
    prepareRow();
    rescoreRowAbove();
    colourKeypad();
    m_.opponentGuess = m_.enteringGuess = m_.waitingForGuess = false;
    m_.showKeypad = true;
    m_.disableSubmit = true;
    carryForward();
    return;
  }
  endMatch();
  m_.enteringGuess = false;
  m_.waitingForGuess = true;
  m_.showKeypad = false;
  clearTurnFlags();
  showLastRow();
}

void Match::showLastRow() {
  if (symbolCount(m_.player8thGuess) < 3 && symbolCount(m_.playerLastGuess) >= 3)
    m_.player8thGuess = m_.playerLastGuess;
  if (symbolCount(m_.player8thGuess) >= 3) {
    writeWord(m_.player8thGuess);
    scoreActiveRow();
  } else {
    paintRow(TileColor::purple);
  }
  if (m_.youWonGame) paintRow(TileColor::green);
}

void Match::endMatch() {
  m_.gameOver = true;
  records_.saveResult(m_);
}

void Match::closeRow() {
  m_.numCellEntries = 0;
  m_.disableSubmit = true;
  m_.invalidGuess = m_.smartModeError = false;
}

void Match::closeTurn() {
  m_.numStrikes = m_.numBalls = 0;
  m_.numCellEntries = 0;
  m_.disableSubmit = true;
  m_.enteringGuess = false;
  m_.waitingForGuess = true;
  m_.showKeypad = false;
}

void Match::clearTurnFlags() {
  m_.selectedGuessReceived = m_.selectedFoundAnswer = m_.selectedMissedFinalGuess = false;
  m_.selectedWalked = m_.selectedStuckOut = m_.selectedIntentionalWalk = false;
}

}  // namespace tessarine
