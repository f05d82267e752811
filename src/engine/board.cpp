#include "engine/board.h"

#include <algorithm>

#include "catalogue/lists.h"

namespace tessarine {

Answer::Answer(std::string_view answer) : text(answer), symbols(splitSymbols(answer)) {
  for (int i = static_cast<int>(symbols.size()) - 1; i >= 0; --i) {
    if (symbols[static_cast<std::size_t>(i)] == "=") {
      equalsColumn = i;
      break;
    }
  }
}

Board::Board(int cells)
    : maximumCells(cells),
      cellLetter(static_cast<std::size_t>(cells), kEmptyCell),
      cellBackground(static_cast<std::size_t>(cells), TileColor::white),
      cellBorderWidth(static_cast<std::size_t>(cells), 1.0) {
  if (cells > 0) cellBorderWidth[0] = 4.0;
}

void Board::clearCells() {
  std::fill(cellLetter.begin(), cellLetter.end(), kEmptyCell);
  std::fill(cellBackground.begin(), cellBackground.end(), TileColor::white);
  std::fill(cellBorderWidth.begin(), cellBorderWidth.end(), 1.0);
  if (!cellBorderWidth.empty()) cellBorderWidth[0] = 4.0;
}

int cellIndex(const Board& board, int row, int column) {
  const int index = row * board.gameLetters + column;
  return index >= 0 && index < board.maximumCells ? index : -1;
}

std::string rowWord(const Board& board, int row) {
  std::string word;
  for (int c = 0; c < board.gameLetters; ++c) {
    const int cell = cellIndex(board, row, c);
    if (cell >= 0) word += board.cellLetter[static_cast<std::size_t>(cell)];
  }
  return word;
}

}  // namespace tessarine
