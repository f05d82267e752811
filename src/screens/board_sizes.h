// How wide the main screen draws tiles and keys, as fractions of the screen's width, by game type,
// keyboard layout and screen height.
#pragma once

#include <string_view>

namespace tessarine {

// A screen lower than this, in logical pixels, is a small one.
inline constexpr double kSmallScreenHeight = 800;

struct BoardSizes {
  double keypadWidth;  // fractions of the screen's width
  double cellWidth;
};

// A type outside the table is drawn like the five- and six-letter word games.
BoardSizes boardSizes(std::string_view gameType, bool useQWERTY, bool smallScreen);

// The same in logical pixels for a screen of `width` x `height`.
struct BoardMetrics {
  double cellWidth = 0;
  double keypadWidth = 0;
};
BoardMetrics boardMetrics(std::string_view gameType, bool useQWERTY, double width, double height);

}  // namespace tessarine
