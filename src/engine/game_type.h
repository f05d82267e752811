// Setting up a board and its keys for one row of the game table. The day game, a match and the
// CLI's engine board all start a game through here.
#pragma once

#include <optional>

#include "catalogue/catalogue.h"
#include "engine/board.h"
#include "engine/keypad.h"

namespace tessarine {

// Lays out the keys of `info` and sizes the board for it; `rows` replaces the table's row count
// (a match has its own). Without a row of the table (`info` null) the board gets the fall-back
// size and keeps its family, and every key reads "X".
void applyGameType(Board& board, Keypad& keypad, const GameTypeInfo* info,
                   std::optional<int> rows = std::nullopt);

}  // namespace tessarine
