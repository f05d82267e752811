// Opening a match (new, accepted by key, or saved), and leaving it: saved, abandoned or deleted.
#include <algorithm>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "challenge/challenge_record.h"
#include "challenge/match.h"

namespace tessarine {

Match::Match(const Lists& lists, DataManager& store, RandomSource& random, bool englishTranslation)
    : lists_(lists), records_(store), random_(random), english_(englishTranslation) {}

void Match::rescan(const std::string& gameType) {
  scan_ = records_.scan(gameType);
}

void Match::openChallenge(const std::string& gameType, bool deleteLastChallengeScore) {
  m_ = MatchState{};
  m_.gameType = gameType;
  applyGameType();
  rescan(gameType);
  const ChosenAnswer chosen = chooseChallengeAnswer(lists_, gameType, random_, scan_.used);
  m_.challengeIndex = chosen.challengeIndex;
  m_.board.answer = Answer(chosen.challengeAnswerWord);
  if (deleteLastChallengeScore) records_.deleteLastScore(scan_);
  m_.board.clearCells();
  m_.board.activeRow = 0;
  prepareRow();
  m_.showKeypad = true;
  placeCursor();
}

void Match::acceptChallenge() {
  const std::string gameType = m_.gameType;
  m_ = MatchState{};
  m_.gameType = gameType;
  m_.numPlayer = 2;
  m_.board.clearCells();
  m_.board.activeRow = -1;
  m_.showKeypad = true;
  m_.currentPosition = 0;
}

void Match::enterKeyDigit(int digit) {
  if (m_.activeRow() != -1 || digit < 0 || digit > 9) return;
  auto& cell = m_.codeNumber[static_cast<std::size_t>(m_.currentPosition)];
  if (cell == kEmptyCell) m_.numCodeEntries += 1;
  if (m_.numCodeEntries == 6) m_.disableSubmit = false;
  cell = std::to_string(digit);
  m_.currentPosition = m_.currentPosition == 5 ? 0 : m_.currentPosition + 1;
}

void Match::clearKeyCell() {
  if (m_.activeRow() != -1) return;
  auto& cell = m_.codeNumber[static_cast<std::size_t>(m_.currentPosition)];
  if (cell != kEmptyCell) {
    m_.numCodeEntries -= 1;
    m_.disableSubmit = true;
  }
  cell = kEmptyCell;
}

void Match::clearKey() {
  if (m_.activeRow() != -1) return;
  m_.codeNumber = MatchState::emptyKey();
  m_.numCodeEntries = 0;
  m_.currentPosition = 0;
  m_.disableSubmit = true;
}

void Match::acceptKey() {
  const KeyCheck check = checkChallengeKey(m_.codeNumber);
  m_.gameIndex = check.gameIndex;
  m_.errorIndex = check.errorIndex;
  if (!check.valid) {
    // The digits stay in their cells for the player to correct.
    m_.invalidKeyEntry = true;
    return;
  }
  m_.gameType = check.gameType;
  m_.challengeIndex = check.challengeIndex;
  if (check.gameIndex >= 1 && check.gameIndex <= 6) m_.EnglishWords = true;
  if (check.gameIndex == 23 || check.gameIndex == 24) m_.EnglishWords = false;
  m_.invalidKeyEntry = false;
  m_.opponentGuess = true;
  m_.disableSubmit = true;
  m_.numCellEntries = 0;
  applyGameType();
  int index = m_.challengeIndex;
  m_.board.answer = Answer(loadChallengeAnswer(lists_, m_.gameType, index));
  m_.challengeIndex = index;
  m_.board.clearCells();
  m_.board.activeRow = 0;
  prepareRow();
  m_.currentPosition = 0;
  placeCursor();
}

std::optional<std::string> Match::saveMatch(const std::string& typedName) {
  const auto name = validSavedName(typedName);
  if (!name)
    return english_ ? "Name Must Be 1 - 20 Characters" : "El nombre debe tener entre 1 y 20 caracteres";
  if (!m_.challengeStarted || m_.gameOver)
    return std::string("Nothing to save: the match has not started or is over");
  records_.saveMatch(m_, *name);
  return std::nullopt;
}

// Even an initiator who leaves before the first guess has drawn an answer; it counts as used.
void Match::leave() {
  if (m_.gameOver) return;
  records_.leaveUnfinished(m_);
}

bool Match::deleteSaved(int choice) {
  return records_.deleteSaved(scan_, choice);
}

bool Match::continueSaved(int choice) {
  if (choice < 0 || choice >= scan_.numberOfSavedChallenges) return false;
  const int position = scan_.savedChallengesIndex[static_cast<std::size_t>(choice)];
  const Entry& entry = scan_.challengeEntries[static_cast<std::size_t>(position)];
  MatchState opened;
  if (!readSavedMatch(entry.text, opened)) return false;
  m_ = opened;
  m_.savedChallengeIndex = position;
  m_.savedEntryId = entry.id;
  applyGameType();
  int index = m_.challengeIndex;
  m_.board.answer = Answer(loadChallengeAnswer(lists_, m_.gameType, index));
  m_.challengeIndex = index;
  m_.challengeKey = makeChallengeKey(m_.gameType, m_.challengeIndex);
  m_.challengeStarted = true;
  replaySaved();
  return true;
}

// Colours are never stored: they are rebuilt from the letters, as on the day the rows were played.
void Match::replaySaved() {
  Board& b = m_.board;
  std::fill(b.cellBackground.begin(), b.cellBackground.end(), TileColor::white);
  std::fill(b.cellBorderWidth.begin(), b.cellBorderWidth.end(), 1.0);
  const int row = b.activeRow;
  if (m_.numPlayer == 1 && row == 1 && !m_.opponentWalked && !m_.opponentStruckOut) {
    // Nothing scored yet: back to the choices, with the row awaiting the reply.
    clearTurnFlags();
    m_.opponentFirstGuessWalked = false;
    m_.waitingForGuess = true;
    m_.enteringGuess = false;
    m_.showKeypad = false;
    paintRow(TileColor::pink);
    return;
  }
  for (int r = 0; r < row; ++r) {
    b.activeRow = r;
    scoreActiveRow();
  }
  b.activeRow = row;
  colourKeypad();
  const bool signal = m_.selectedFoundAnswer || m_.selectedWalked || m_.selectedStuckOut ||
                      m_.selectedMissedFinalGuess || m_.selectedIntentionalWalk;
  if (signal) paintRow(TileColor::black);
  if (m_.selectedGuessReceived) paintRow(TileColor::pink);
  if (m_.youWonGame) paintRow(TileColor::green);
  if (m_.showKeypad) b.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 4.0;
}

}  // namespace tessarine
