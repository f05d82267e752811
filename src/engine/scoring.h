// Turning one accepted guess into one coloured row of the board.
#pragma once

#include <string_view>

#include "engine/board.h"

namespace tessarine {

// Colours row `activeRow` from `guess`; each tile is decided alone from the symbol counts.
void scoreGuess(Board& board, std::string_view guess);

// Whether painting a row leaves an equation's "=" white, as the day game's board frames it, or
// paints it with the row, as a match does.
enum class EqualsTile { keepWhite, paint };

// Paints the whole row `activeRow`.
void fillRow(Board& board, TileColor color, EqualsTile equals = EqualsTile::keepWhite);

bool isWin(const Board& board, std::string_view guess);

}  // namespace tessarine
