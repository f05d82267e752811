// Turning one accepted guess into one coloured row of the board.
#pragma once

#include <string>
#include <string_view>

#include "engine/tile_color.h"

namespace tessarine {

struct ContentView;
class Lists;

// The answer of the shown day for the shown game type, read through the lists on each call.
std::string mysteryAnswer(const ContentView& view, const Lists& lists);

// Column of the last "=" of the answer, 0 when it has none.
int equalsIndex(const ContentView& view, const Lists& lists);

// Colours row `activeRow` from `guess`; each tile is decided alone from the symbol counts.
void scoreGuess(ContentView& view, const Lists& lists, std::string_view guess);

// Paints the whole row `activeRow`; an equation keeps its "=" tile white.
void fillRow(ContentView& view, const Lists& lists, TileColor color);

bool isWin(const ContentView& view, const Lists& lists, std::string_view guess);

// Cell index of (row, column), or -1 when it falls outside the fixed board.
int cellIndex(const ContentView& view, int row, int column);

// The letters of a board row joined in column order.
std::string rowWord(const ContentView& view, int row);

}  // namespace tessarine
