// Turning one accepted guess into one coloured row of the board.
#pragma once

#include <string_view>

#include "engine/board.h"

namespace tessarine {

// Colours row `activeRow` from `guess`; each tile is decided alone from the symbol counts.
void scoreGuess(Board& board, std::string_view guess);

// Paints the whole row `activeRow`; an equation keeps its "=" tile white.
void fillRow(Board& board, TileColor color);

bool isWin(const Board& board, std::string_view guess);

}  // namespace tessarine
