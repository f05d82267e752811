// What the colour-blind presentation draws on a tile beside its colour, so that no hint is told
// by hue alone.
#pragma once

#include <string_view>

#include "engine/tile_color.h"

namespace tessarine {

// A system symbol name for each scoring colour (green, blue, yellow, orange, gray), each one
// distinct; empty for the colours that are not scores, which stay as they are.
std::string_view colourBlindMark(TileColor colour);

}  // namespace tessarine
