#pragma once

#include <string_view>

namespace tessarine {

// The colour of a tile or a key. Compared for equality only and never stored: colours are
// always derived again from the stored letters.
enum class TileColor { white, gray, green, blue, yellow, orange, red, cyan, purple, black };

constexpr std::string_view tileColorName(TileColor color) {
  switch (color) {
    case TileColor::white:
      return "white";
    case TileColor::gray:
      return "gray";
    case TileColor::green:
      return "green";
    case TileColor::blue:
      return "blue";
    case TileColor::yellow:
      return "yellow";
    case TileColor::orange:
      return "orange";
    case TileColor::red:
      return "red";
    case TileColor::cyan:
      return "cyan";
    case TileColor::purple:
      return "purple";
    case TileColor::black:
      return "black";
  }
  return "white";
}

}  // namespace tessarine
