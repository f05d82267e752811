// The choices that tell this device what the opponent did, and the own turn's intentional walk.
#include "challenge/match.h"

namespace tessarine {

std::vector<MatchChoice> Match::offeredChoices() const {
  if (!m_.waitingForGuess || m_.gameOver) return {};
  if ((m_.youWonGame && !m_.opponentWonGame) || m_.activeRow() == m_.lastRow())
    return {MatchChoice::foundAnswer, MatchChoice::missedAnswer};
  return {MatchChoice::guessReceived, MatchChoice::foundAnswer, MatchChoice::walked, MatchChoice::struckOut};
}

void Match::chooseGuessReceived() {
  if (!m_.waitingForGuess || m_.gameOver) return;
  m_.disableSubmit = true;
  m_.showKeypad = m_.enteringGuess = m_.opponentGuess = true;
  m_.waitingForGuess = false;
  clearTurnFlags();
  if (m_.player8thGuess.size() >= 3) {
    m_.numCellEntries = m_.board.gameLetters;
    m_.invalidGuess = false;
  } else {
    prepareRow();
  }
  paintRow(TileColor::pink);
  carryForward();
  m_.selectedGuessReceived = true;
}

void Match::chooseSignal(SignalMove move) {
  if (!m_.waitingForGuess || m_.gameOver) return;
  m_.showKeypad = false;
  m_.enteringGuess = m_.opponentGuess = true;
  m_.waitingForGuess = false;
  clearTurnFlags();
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  prepareRow();
  writeRow(signalFill(m_.gameType, move, m_.board.gameLetters, m_.board.answer.equalsColumn));
  m_.disableSubmit = false;
  paintRow(TileColor::black);
  switch (move) {
    case SignalMove::foundAnswer:
      m_.selectedFoundAnswer = true;
      break;
    case SignalMove::walked:
      m_.selectedWalked = true;
      if (m_.activeRow() == 1) m_.opponentFirstGuessWalked = true;
      break;
    case SignalMove::struckOut:
      m_.selectedStuckOut = true;
      break;
    case SignalMove::missedFinalGuess:
      m_.selectedMissedFinalGuess = true;
      break;
    case SignalMove::intentionalWalk:
      break;
  }
}

void Match::chooseIntentionalWalk() {
  // Only on the player's own turn, and never on the opening guess.
  if (m_.activeRow() < 1 || m_.waitingForGuess || m_.opponentGuess || m_.gameOver) return;
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  prepareRow();
  writeRow(signalFill(m_.gameType, SignalMove::intentionalWalk, m_.board.gameLetters,
                      m_.board.answer.equalsColumn));
  paintRow(TileColor::black);
  m_.showKeypad = false;
  m_.disableSubmit = false;
  m_.selectedIntentionalWalk = true;
}

void Match::cancelIntentionalWalk() {
  if (!m_.selectedIntentionalWalk) return;
  m_.selectedIntentionalWalk = false;
  m_.showKeypad = true;
  prepareRow();
  m_.disableSubmit = true;
  carryForward();
}

void Match::undoChoice() {
  if (!m_.enteringGuess || m_.activeRow() < 1 || m_.gameOver) return;
  clearTurnFlags();
  m_.opponentFirstGuessWalked = false;
  m_.waitingForGuess = true;
  m_.enteringGuess = m_.smartModeError = false;
  m_.showKeypad = false;
  m_.disableSubmit = true;
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  if (m_.youWonGame) {
    writeWord(m_.board.answer.text);
    paintRow(TileColor::green);
    return;
  }
  prepareRow();
  paintRow(TileColor::pink);
  carryForward();
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
}

}  // namespace tessarine
