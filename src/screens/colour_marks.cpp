#include "screens/colour_marks.h"

namespace tessarine {

// Each mark says what its colour says: right spot, a copy more, wrong spot, a copy fewer, absent.
std::string_view colourBlindMark(TileColor colour) {
  switch (colour) {
    case TileColor::green:
      return "checkmark";
    case TileColor::blue:
      return "plus";
    case TileColor::yellow:
      return "arrow.left.arrow.right";
    case TileColor::orange:
      return "minus";
    case TileColor::gray:
      return "circle.slash";
    default:
      return "";
  }
}

}  // namespace tessarine
