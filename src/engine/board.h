// The values every rule works on: a board of lettered, coloured cells and the answer it is played
// against. The main screen and a match each own one; the rules never ask whose it is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/tile_color.h"

namespace tessarine {

inline constexpr const char* kEmptyCell = "   ";

// The mystery of one game, split into symbols ("Ñ" is one) with its "=" column.
struct Answer {
  std::string text;
  std::vector<std::string> symbols;
  int equalsColumn = 0;  // the last "=", 0 when there is none

  Answer() = default;
  explicit Answer(std::string_view answer);
  friend bool operator==(const Answer&, const Answer&) = default;
};

// Row-major cells: cell = row * gameLetters + column, on a fixed number of cells.
struct Board {
  explicit Board(int cells);

  int maximumCells;
  std::vector<std::string> cellLetter;
  std::vector<TileColor> cellBackground;
  std::vector<double> cellBorderWidth;  // 1.0, or 4.0 on the active cell
  int gameLetters = 4;
  int gameRows = 6;
  int activeRow = 0;
  std::string typeOfGame = "Z";  // "L", "N" or "E" once a game type is applied
  Answer answer;

  // Empties every cell, paints it white and puts the cursor on cell 0.
  void clearCells();
};

// Cell index of (row, column), or -1 when it falls outside the board.
int cellIndex(const Board& board, int row, int column);

// The letters of a board row joined in column order.
std::string rowWord(const Board& board, int row);

}  // namespace tessarine
