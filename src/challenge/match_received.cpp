// Submit of a received move: a signal fill chosen from the opponent's text, or the guess typed
// from it. A received guess that fails counts against nobody; it waits for the right text.
#include "catalogue/lists.h"
#include "challenge/match.h"
#include "engine/smart_mode.h"

namespace tessarine {

void Match::submitReceived() {
  const std::string& type = m_.gameType;
  // Two lost turns in a row by the opponent are this player's win.
  const bool opponentLostLastTurn = m_.opponentWalked || m_.opponentStruckOut;
  if (rowHoldsFill(m_.board, type, SignalMove::foundAnswer)) {
    m_.opponentWonGame = true;
    m_.opponentStruckOut = m_.opponentWalked = m_.opponentGuess = false;
    closeRow();
    return endOrGiveFinalGuess(true);
  }
  if (rowHoldsFill(m_.board, type, SignalMove::walked)) {
    if (opponentLostLastTurn) {
      m_.youWonGame = true;
      m_.opponentStruckOut = false;
    } else if (m_.activeRow() == m_.lastRow()) {
      m_.opponentMissedFinalGuess = true;
    }
    m_.opponentWalked = true;
    m_.opponentGuess = false;
    closeRow();
    return endOrGiveFinalGuess(false);
  }
  if (rowHoldsFill(m_.board, type, SignalMove::struckOut)) {
    if (opponentLostLastTurn) {
      m_.youWonGame = true;
      m_.opponentWalked = false;
    }
    m_.opponentStruckOut = true;
    m_.opponentGuess = false;
    closeRow();
    return endOrGiveFinalGuess(false);
  }
  if (rowHoldsFill(m_.board, type, SignalMove::missedFinalGuess)) {
    m_.opponentWalked = m_.opponentStruckOut = false;
    m_.opponentMissedFinalGuess = true;
    m_.opponentGuess = false;
    closeRow();
    return endOrGiveFinalGuess(false);
  }
  submitReceivedGuess();
}

void Match::submitReceivedGuess() {
  if (!validGuess()) {
    paintRow(TileColor::cyan);
    m_.invalidGuess = true;
    return;
  }
  if (wasGuessUsed()) {
    paintRow(TileColor::purple);
    m_.invalidGuess = true;
    return;
  }
  m_.opponentLastGuess = m_.activeWord;
  if (m_.activeRow() == 0) {
    // The initiator's opening guess on the accepter's device: its colours are the first ones.
    scoreActiveRow();
    colourKeypad();
    m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
    m_.board.activeRow = 1;
    prepareRow();
    m_.opponentWalked = m_.opponentStruckOut = m_.opponentMissedFinalGuess = m_.opponentWonGame = false;
    m_.opponentGuess = m_.enteringGuess = false;
    m_.disableSubmit = true;
    m_.invalidGuess = m_.smartModeError = false;
    m_.challengeStarted = true;
    m_.challengeKey = makeChallengeKey(m_.gameType, m_.challengeIndex);
    carryForward();
    return;
  }
  paintRow(TileColor::white);
  rescoreRowAbove();
  if (!passesSmartMode(m_.board)) {
    // It is the opponent's text that can't be right: ask, don't count.
    if (m_.activeRow() == 1) {
      paintRow(TileColor::white);
      m_.board.activeRow = 0;
      paintRow(TileColor::white);
      m_.board.activeRow = 1;
    }
    m_.smartModeError = m_.invalidGuess = true;
    return;
  }
  m_.opponentStruckOut = m_.opponentWalked = false;
  m_.smartModeError = m_.invalidGuess = false;
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  if (m_.youWonGame) {
    // The opponent's final guess after this player found the answer, and not the answer itself.
    endMatch();
    closeTurn();
    writeWord(m_.board.answer.text);
    paintRow(TileColor::green);
    return;
  }
  if (m_.activeRow() == m_.lastRow()) {
    m_.opponentMissedFinalGuess = true;
    closeRow();
    m_.opponentGuess = false;
    return endOrGiveFinalGuess(false);
  }
  m_.opponentGuess = m_.enteringGuess = false;
  scoreActiveRow();
  colourKeypad();
  m_.board.activeRow += 1;
  prepareRow();
  m_.disableSubmit = true;
  m_.showKeypad = true;
  carryForward();
}

}  // namespace tessarine
