// The cell cursor and the buttons that change the active row without submitting it.
#include "catalogue/catalogue.h"
#include "session/game_setup.h"
#include "session/session.h"

namespace tessarine {

int Session::neededEntries() const {
  // The equals tile of an equation row is never typed and never counted.
  return isEquationType(view_.gameType) ? view_.gameLetters - 1 : view_.gameLetters;
}

void Session::enterSymbol(const std::string& symbol) {
  ContentView& v = view_;
  const int cell = v.currentPosition;
  if (cell < 0 || cell >= kMaximumCells || !v.showKeypad) return;
  if (v.cellLetter[cell] != symbol) v.showHintDefinition = false;
  v.refusal = {};
  if (v.cellLetter[cell] == kEmptyCell) v.numCellEntries += 1;
  if (v.numCellEntries == neededEntries()) v.disableSubmit = false;
  v.cellLetter[cell] = symbol;
  v.cellBackground[cell] = TileColor::white;
  v.cellBorderWidth[cell] = 1.0;
  // The cursor moves right and wraps to the row's first cell; it jumps over the equals tile.
  int next = cell % v.gameLetters == v.gameLetters - 1 ? cell - (v.gameLetters - 1) : cell + 1;
  if (isEquationType(v.gameType) && next % v.gameLetters == v.answer.equalsColumn) next += 1;
  v.currentPosition = next;
  v.cellBorderWidth[next] = 4.0;
}

bool Session::keyLive(const std::string& symbol) const {
  const ContentView& v = view_;
  bool onKeypad = false;
  for (int key = 0; key < v.keypadNumber && key < kKeypadSize; ++key)
    onKeypad = onKeypad || v.keypadLetters[key] == symbol;
  if (!onKeypad || !v.showKeypad) return false;
  if (!isEquationType(v.gameType)) return true;
  const int column = v.currentPosition % v.gameLetters;
  const int equals = v.answer.equalsColumn;
  const bool beside = column == equals - 1 || column == v.gameLetters - 1;
  if (symbol == "-") return !beside && !v.disableMinusKey;
  const bool disabled = operatorDisabled(v, symbol);
  if (symbol == "+" || symbol == "X" || symbol == "/")
    return !(column == 0 || beside || column == equals + 1 || disabled);
  return true;
}

void Session::touchCell(int column) {
  ContentView& v = view_;
  if (!v.showKeypad || column < 0 || column >= v.gameLetters) return;
  if (isEquationType(v.gameType) && column == v.answer.equalsColumn) return;
  const int cell = v.activeRow * v.gameLetters + column;
  if (cell >= kMaximumCells) return;
  v.cellBorderWidth[v.currentPosition] = 1.0;
  v.currentPosition = cell;
  v.cellBorderWidth[cell] = 4.0;
}

void Session::clearCell() {
  ContentView& v = view_;
  v.showHintDefinition = false;
  const int cell = v.currentPosition;
  if (!v.showKeypad || cell < 0 || cell >= kMaximumCells) return;
  v.refusal = {};
  if (v.cellLetter[cell] != kEmptyCell) {
    v.numCellEntries -= 1;
    v.disableSubmit = true;
    if (v.numCellEntries == 0) v.disableHints = false;
  }
  v.cellLetter[cell] = kEmptyCell;
  v.cellBackground[cell] = TileColor::white;
}

void Session::moveCursor(int step) {
  ContentView& v = view_;
  if (!v.showKeypad || step == 0) return;
  const int first = v.activeRow * v.gameLetters;
  int column = v.currentPosition - first;
  do {
    column += step < 0 ? -1 : 1;
  } while (isEquationType(v.gameType) && column == v.answer.equalsColumn);
  if (column < 0 || column >= v.gameLetters) return;
  touchCell(column);
}

void Session::backspace() {
  ContentView& v = view_;
  if (!v.showKeypad) return;
  const int first = v.activeRow * v.gameLetters;
  if (v.numCellEntries == neededEntries() && v.currentPosition == first) {
    // Typing the last cell wrapped the cursor to the first: the player means the last symbol.
    touchCell(v.gameLetters - 1);
  } else if (v.cellLetter[v.currentPosition] == kEmptyCell) {
    moveCursor(-1);
  }
  clearCell();
}

void Session::clearRow() {
  ContentView& v = view_;
  v.showHintDefinition = false;
  if (!v.showKeypad) return;
  v.refusal = {};
  v.numCellEntries = 0;
  v.disableSubmit = true;
  v.disableHints = false;
  v.cellBorderWidth[v.currentPosition] = 1.0;
  const int first = v.activeRow * v.gameLetters;
  v.currentPosition = first;
  for (int column = 0; column < v.gameLetters; ++column) {
    const int cell = first + column;
    if (!(column >= 3 && v.cellLetter[cell] == "=")) v.cellLetter[cell] = kEmptyCell;
    v.cellBackground[cell] = TileColor::white;
    v.cellBorderWidth[cell] = 1.0;
  }
  v.cellBorderWidth[first] = 4.0;
}

void Session::moveCorrectLetters() {
  ContentView& v = view_;
  if (!v.showKeypad) return;
  v.cellBorderWidth[v.currentPosition] = 1.0;
  const int first = v.activeRow * v.gameLetters;
  for (int row = 0; row < v.activeRow; ++row) {
    for (int column = 0; column < v.gameLetters; ++column) {
      const int cell = row * v.gameLetters + column;
      const TileColor color = v.cellBackground[cell];
      if (color != TileColor::green && color != TileColor::blue) continue;
      v.currentPosition = first + column;
      enterSymbol(v.cellLetter[cell]);
      v.cellBorderWidth[v.currentPosition] = 1.0;  // no stray cursor marks while copying
    }
  }
  int target = first;
  for (int column = 0; column < v.gameLetters; ++column) {
    if (v.cellLetter[first + column] == kEmptyCell) {
      target = first + column;
      break;
    }
  }
  v.currentPosition = target;
  v.cellBorderWidth[target] = 4.0;
}

}  // namespace tessarine
