// The guess distribution screen: one bar for each winning score of the shown type, its length on
// a scale of 5 to 255 and its colour set by how close its count comes to the largest one.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/tile_color.h"
#include "statistics/second_view.h"

namespace tessarine {

inline constexpr int kDistributionBars = 7;

struct SixthView {
  std::array<TileColor, kDistributionBars> cellBackground;
  std::array<double, kDistributionBars> cellFrameWidth;
  // The length on the 5-255 scale from which `cellFrameWidth` was last drawn.
  std::array<double, kDistributionBars> rawLength;
  std::array<int, kScoreSlots> scoreInt{};
  std::string gameType;
  bool EnglishTranslation = true;
  double screenWidth = kDefaultScreenWidth;
  double fontSizeTitle = 0, fontSizeText = 0, frameWidth = 0, symbolWidth = 0;

  SixthView();

  std::string_view title() const;
  int shownBars() const;  // the winning scores of the type; "Picking up" has no bar
  std::string barLabel(int bar) const;

  // Sets every bar's length and colour; the screen runs it each time it appears.
  void appear();
};

SixthView makeSixthView(const SecondView& second, double screenWidth = kDefaultScreenWidth);

}  // namespace tessarine
