#include "statistics/sixth_view.h"

#include <algorithm>
#include <optional>

#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

constexpr double kStartLength = 5.0;
constexpr double kFullLength = 255.0;

// The length of a count c against the largest count m, in steps of a fiftieth of m; below the
// lowest step a fortieth decides. No step holds: the bar keeps the length it has.
std::optional<double> stepLength(int c, int m) {
  if (c == 0) return kStartLength;
  if (c == m) return kFullLength;
  for (int k = 49; k >= 2; --k)
    if (c > m * k / 50) return 5.0 + 5.0 * k;
  if (c > m / 40) return 10.0;
  return std::nullopt;
}

TileColor barColor(int c, int m) {
  if (c == 0) return TileColor::red;
  if (c > m * 3 / 4) return TileColor::green;
  if (c > m / 2) return TileColor::blue;
  if (c > m / 4) return TileColor::yellow;
  return TileColor::red;
}

}  // namespace

SixthView::SixthView() {
  cellBackground.fill(TileColor::gray);
  cellFrameWidth.fill(kStartLength);
  rawLength.fill(kStartLength);
}

SixthView makeSixthView(const SecondView& second, double screenWidth) {
  SixthView view;
  view.scoreInt = second.scoreInt;
  view.gameType = second.gameType;
  view.EnglishTranslation = second.EnglishTranslation;
  view.screenWidth = screenWidth;
  view.fontSizeTitle = screenWidth * 0.06;
  view.fontSizeText = screenWidth * 0.05;
  view.frameWidth = screenWidth * 0.1;
  view.symbolWidth = screenWidth * 0.05;
  return view;
}

std::string_view SixthView::title() const {
  return EnglishTranslation ? "Guess Distribution" : "Distribución de conjeturas";
}

int SixthView::shownBars() const {
  const GameTypeInfo* info = findGameType(gameType);
  return info != nullptr ? info->rows : kFallbackRows;
}

std::string SixthView::barLabel(int bar) const {
  return " " + std::to_string(bar + 1);
}

void SixthView::appear() {
  const double scale = screenWidth * 0.7 / kFullLength;
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr) {
    rawLength.fill(kFullLength);
    cellFrameWidth.fill(kFullLength * scale);
    cellBackground.fill(TileColor::purple);
    return;
  }
  const int rows = std::min(info->rows, kDistributionBars);
  const int m = *std::max_element(scoreInt.begin(), scoreInt.begin() + rows);
  for (int i = 0; i < rows; ++i) {
    const int c = scoreInt[i];
    // A bar that no step reaches starts from what it shows, so a second appearance shrinks it again.
    rawLength[i] = stepLength(c, m).value_or(cellFrameWidth[i]);
    cellFrameWidth[i] = rawLength[i] * scale;
    cellBackground[i] = barColor(c, m);
  }
}

}  // namespace tessarine
