#include "session/session_replay.h"

#include <algorithm>

#include "catalogue/catalogue.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine/scoring.h"
#include "engine/smart_mode.h"
#include "engine/validation.h"
#include "session/session.h"

namespace tessarine {

int SessionReplay::countRowEntries(int row) {
  ContentView& v = session_.view_;
  const bool equation = isEquationType(v.gameType);
  const int equals = equation ? v.answer.equalsColumn : -1;
  int entries = 0;
  for (int column = 0; column < v.gameLetters; ++column) {
    std::string& letter = v.cellLetter[row * v.gameLetters + column];
    if (letter == " " || letter == kEmptyCell) {
      letter = kEmptyCell;
    } else if (column != equals) {
      entries += 1;  // the equals tile is never typed, so it never counts
    }
  }
  return entries;
}

void SessionReplay::prepopulate(const DayRecord& source) {
  ContentView& v = session_.view_;
  for (int column = 0; column < v.gameLetters; ++column)
    v.cellLetter[column] = recordCharacter(source, source.firstCell + column);
  v.numCellEntries = countRowEntries(0);
  if (v.numCellEntries == session_.neededEntries()) v.disableSubmit = false;
}

void SessionReplay::run(const ReplayScan& scan, const std::vector<DayRecord>& records) {
  ContentView& v = session_.view_;
  const DayRecord* shown = scan.lastMatch >= 0 ? &records[scan.lastMatch] : nullptr;
  const std::vector<std::string> tiles = shown ? splitSymbols(shown->tileText()) : std::vector<std::string>{};
  const int firstCell = shown ? shown->firstCell : 6;
  // The reader refuses records with more rows than the game; the bound keeps the marks safe anyway.
  const int storedCells = std::min(static_cast<int>(tiles.size()) - firstCell, v.gameRows * v.gameLetters);

  if (storedCells < 1) {
    if (v.prepopulate && scan.prepopulateSource >= 0) prepopulate(records[scan.prepopulateSource]);
  } else {
    const bool smartRecord = restoreRowMarks(v, shown->marks());
    for (int cell = 0; cell < storedCells && cell < kMaximumCells; ++cell)
      v.cellLetter[cell] = tiles[firstCell + cell];
    const int rowsUsed = (storedCells + v.gameLetters - 1) / v.gameLetters;
    v.cellBorderWidth[0] = 1.0;
    for (int row = 0; row + 1 < rowsUsed; ++row) {
      v.activeRow = row;
      v.activeWord = rowWord(v, row);
      if (row >= 1 && passesSmartMode(v)) v.smartModeCorrect[row - 1] = true;
      scoreGuess(v, v.activeWord);
    }
    v.activeRow = rowsUsed - 1;
    v.currentPosition = v.activeRow * v.gameLetters;
    v.cellBorderWidth[v.currentPosition] = 4.0;
    v.numCellEntries = countRowEntries(v.activeRow);
    if (v.numCellEntries == session_.neededEntries()) lastFullRow(scan, records, smartRecord);
  }

  // The player never types the equals sign.
  if (v.showKeypad && isEquationType(v.gameType))
    v.cellLetter[v.activeRow * v.gameLetters + v.answer.equalsColumn] = "=";
}

void SessionReplay::lastFullRow(const ReplayScan& scan, const std::vector<DayRecord>& records,
                                bool smartRecord) {
  ContentView& v = session_.view_;
  v.disableSubmit = false;
  v.activeWord = rowWord(v, v.activeRow);
  if (!isValidGuess(v.gameType, session_.lists_, v.activeWord)) {
    fillRow(v, TileColor::cyan);
    session_.refreshKnowledge();
    if (hasHints(v.gameType) && v.wantHints && v.activeRow > 0) {
      if (v.numberOfHints == -1) session_.computeHintsNow();
      v.displayHintsNumbers = true;
    }
  } else if (isWin(v, v.activeWord) && !smartRecord) {
    fillRow(v, TileColor::green);
    v.cellBorderWidth[v.currentPosition] = 1.0;
    v.showKeypad = false;
    if (v.activeRow != scan.lastScore - 1)
      session_.rewriteShownRecord(records[scan.lastMatch], v.activeRow + 1);
    if (v.activeRow >= 1) v.smartModeCorrect[v.activeRow - 1] = true;
  } else if (wasUsedBefore(v, v.activeWord)) {
    fillRow(v, TileColor::purple);
  } else if (!smartRecord) {
    acceptedRow(scan, records);
  } else {
    openRow();
  }
}

void SessionReplay::acceptedRow(const ReplayScan& scan, const std::vector<DayRecord>& records) {
  ContentView& v = session_.view_;
  v.disableSubmit = true;
  if (v.activeRow >= 1 && passesSmartMode(v)) v.smartModeCorrect[v.activeRow - 1] = true;
  scoreGuess(v, v.activeWord);
  session_.refreshKnowledge();
  if (hasHints(v.gameType) && v.wantHints) {
    // Narrow only for a newly accepted row, so that hints taken on this row stay taken.
    if (session_.rowJustAccepted_ || v.numberOfHints == -1) session_.computeHintsNow();
    v.displayHintsNumbers = true;
    v.disableHints = false;
  }
  v.cellBorderWidth[v.currentPosition] = 1.0;
  v.activeRow += 1;
  if (v.activeRow == v.gameRows) {
    v.showKeypad = false;
    if (v.activeRow != scan.lastScore - 1)
      session_.rewriteShownRecord(records[scan.lastMatch], v.activeRow + 1);
    return;
  }
  v.numCellEntries = 0;
  v.currentPosition = v.activeRow * v.gameLetters;
  v.cellBorderWidth[v.currentPosition] = 4.0;
  if (scan.lastScore != 0) session_.rewriteShownRecord(records[scan.lastMatch], 0);
}

// A full row that Smart Mode refused, or that Hints filled and the player has not yet submitted:
// it stays open for editing and is not scored.
void SessionReplay::openRow() {
  ContentView& v = session_.view_;
  const int markRow = v.activeRow - 1;
  session_.refreshKnowledge();  // the keys still show what the rows above taught
  if (markRow >= 0 && v.smartModeError[markRow]) passesSmartMode(v);  // the red cells come back
  if (markRow >= 0 && v.usedHints[markRow]) {
    if (hasHints(v.gameType) && v.wantHints && v.numberOfHints == -1) session_.computeHintsNow();
    v.displayHintsNumbers = true;
    v.disableHints = true;  // one row takes one hint
    v.showHintDefinition = v.showDefinitions;
  }
}

}  // namespace tessarine
