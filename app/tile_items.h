#pragma once

#include <string>
#include <vector>

#include "engine/board.h"
#include "engine/keypad.h"
#include "tile_list_model.h"

// Tiles and keys as drawn, for any board: the main game's and a match's build them the same way.

// With `colourBlind` the tile carries the mark of its colour.
TileItem tileItem(const std::string& symbol, tessarine::TileColor color, bool equation,
                  bool colourBlind = false);

// The first `rows` rows of `board`, each cell placed in its grid row and column.
std::vector<TileItem> boardItems(const tessarine::Board& board, int rows, bool colourBlind = false);

// The keys of `keypad` placed in `keyRows` (indices into its letters); every key starts live.
std::vector<TileItem> keypadItems(const tessarine::Keypad& keypad,
                                  const std::vector<std::vector<int>>& keyRows, bool equation,
                                  bool colourBlind = false);
