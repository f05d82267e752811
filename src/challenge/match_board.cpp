// The match's own board: the rows, the cursor, the carried-forward letters and the colours, all
// through the same engine rules as the day game.
#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "challenge/match.h"
#include "engine/game_type.h"
#include "engine/keypad_colors.h"
#include "engine/scoring.h"
#include "engine/validation.h"

namespace tessarine {

void Match::applyGameType() {
  const GameTypeInfo* info = findGameType(m_.gameType);
  m_.keypad = Keypad{};
  // A match has eight rows whatever the day game has.
  tessarine::applyGameType(m_.board, m_.keypad, info, m_.numGuesses);
  if (info == nullptr) m_.board.typeOfGame = "L";
  m_.knowledge = Knowledge{};
}

int Match::neededEntries() const {
  return isEquationType(m_.gameType) ? m_.board.gameLetters - 1 : m_.board.gameLetters;
}

// Empties the active row; an equation row keeps its "=" where the answer has it.
void Match::prepareRow() {
  Board& b = m_.board;
  for (int column = 0; column < b.gameLetters; ++column) {
    const int cell = cellIndex(b, b.activeRow, column);
    if (cell < 0) continue;
    const bool equals = isEquationType(m_.gameType) && column == b.answer.equalsColumn;
    b.cellLetter[static_cast<std::size_t>(cell)] = equals ? "=" : kEmptyCell;
    b.cellBackground[static_cast<std::size_t>(cell)] = TileColor::white;
    b.cellBorderWidth[static_cast<std::size_t>(cell)] = 1.0;
  }
  m_.numCellEntries = 0;
}

void Match::writeRow(const std::vector<std::string>& symbols) {
  Board& b = m_.board;
  for (int column = 0; column < b.gameLetters && column < static_cast<int>(symbols.size()); ++column) {
    const int cell = cellIndex(b, b.activeRow, column);
    if (cell >= 0) b.cellLetter[static_cast<std::size_t>(cell)] = symbols[static_cast<std::size_t>(column)];
  }
}

void Match::writeWord(const std::string& word) {
  prepareRow();
  writeRow(splitSymbols(word));
}

void Match::paintRow(TileColor color) {
  fillRow(m_.board, color, EqualsTile::paint);
}

void Match::scoreActiveRow() {
  paintRow(TileColor::white);
  scoreGuess(m_.board, rowWord(m_.board, m_.board.activeRow));
}

// Colours of the row above are rebuilt from its letters so that both devices test against the
// same hints, whatever was painted there before.
void Match::rescoreRowAbove() {
  Board& b = m_.board;
  if (b.activeRow < 1) return;
  b.activeRow -= 1;
  scoreActiveRow();
  b.activeRow += 1;
}

void Match::colourKeypad() {
  m_.keypad.keypadKeyColor.fill(TileColor::white);
  updateKnowledge(m_.board, m_.keypad, m_.knowledge);
}

void Match::enterSymbol(const std::string& symbol) {
  Board& b = m_.board;
  const int cell = m_.currentPosition;
  if (!m_.showKeypad || b.activeRow < 0 || cell < 0 || cell >= kMatchCells) return;
  auto& letter = b.cellLetter[static_cast<std::size_t>(cell)];
  if (letter == kEmptyCell) m_.numCellEntries += 1;
  letter = symbol;
  b.cellBackground[static_cast<std::size_t>(cell)] = TileColor::white;
  b.cellBorderWidth[static_cast<std::size_t>(cell)] = 1.0;
  if (m_.numCellEntries >= neededEntries()) m_.disableSubmit = false;
  // Right, wrapping to the row's first cell, over an equation's "=".
  const int first = b.activeRow * b.gameLetters;
  int next = cell + 1 >= first + b.gameLetters ? first : cell + 1;
  if (isEquationType(m_.gameType) && next - first == b.answer.equalsColumn)
    next = next + 1 >= first + b.gameLetters ? first : next + 1;
  m_.currentPosition = next;
  b.cellBorderWidth[static_cast<std::size_t>(next)] = 4.0;
}

void Match::clearCell() {
  Board& b = m_.board;
  const int cell = m_.currentPosition;
  if (!m_.showKeypad || b.activeRow < 0 || cell < 0 || cell >= kMatchCells) return;
  auto& letter = b.cellLetter[static_cast<std::size_t>(cell)];
  if (letter == "=" && isEquationType(m_.gameType)) return;
  if (letter != kEmptyCell) {
    m_.numCellEntries -= 1;
    m_.disableSubmit = true;
  }
  letter = kEmptyCell;
  b.cellBackground[static_cast<std::size_t>(cell)] = TileColor::white;
}

void Match::clearRow() {
  if (m_.board.activeRow < 0) return clearKey();
  if (!m_.showKeypad) return;  // a signal fill stands
  m_.board.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  prepareRow();
  if (m_.selectedGuessReceived) paintRow(TileColor::pink);
  m_.disableSubmit = true;
  placeCursor();
}

void Match::touchCell(int column) {
  Board& b = m_.board;
  if (!m_.showKeypad || b.activeRow < 0 || column < 0 || column >= b.gameLetters) return;
  if (isEquationType(m_.gameType) && column == b.answer.equalsColumn) return;
  b.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  m_.currentPosition = b.activeRow * b.gameLetters + column;
  b.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 4.0;
}

// The cursor goes to the first empty cell of the row, or its first cell when the row is full.
void Match::placeCursor() {
  Board& b = m_.board;
  const int first = b.activeRow * b.gameLetters;
  int target = first;
  for (int column = 0; column < b.gameLetters; ++column) {
    if (b.cellLetter[static_cast<std::size_t>(first + column)] == kEmptyCell) {
      target = first + column;
      break;
    }
  }
  m_.currentPosition = target;
  b.cellBorderWidth[static_cast<std::size_t>(target)] = 4.0;
}

// Letters known to be in place (green, or blue: in place with more copies elsewhere) stand ready
// in the new row, entered as if typed.
void Match::carryForward() {
  Board& b = m_.board;
  if (b.activeRow < 1) return placeCursor();
  const bool shown = m_.showKeypad;
  m_.showKeypad = true;
  const int above = (b.activeRow - 1) * b.gameLetters;
  for (int column = 0; column < b.gameLetters; ++column) {
    const TileColor color = b.cellBackground[static_cast<std::size_t>(above + column)];
    if (color != TileColor::green && color != TileColor::blue) continue;
    const auto& letter = b.cellLetter[static_cast<std::size_t>(above + column)];
    if (letter == "=") continue;
    const int cell = b.activeRow * b.gameLetters + column;
    const TileColor own = b.cellBackground[static_cast<std::size_t>(cell)];  // a pink row stays pink
    m_.currentPosition = cell;
    enterSymbol(letter);
    b.cellBackground[static_cast<std::size_t>(cell)] = own;
    b.cellBorderWidth[static_cast<std::size_t>(m_.currentPosition)] = 1.0;
  }
  m_.showKeypad = shown;
  placeCursor();
}

bool Match::wasGuessUsed() const {
  return wasUsedBefore(m_.board, m_.activeWord);
}

bool Match::validGuess() const {
  return isValidGuess(m_.gameType, lists_, m_.activeWord);
}

}  // namespace tessarine
