#pragma once

#include <string>

#include "catalogue/clock.h"

namespace tessarine {

struct ContentView;

// Figures derived on demand from the statistics pass, for the statistics screen and the share
// text. Dates are the shown dates (blank under the thank-you cover); texts follow
// `EnglishTranslation`.
int currentStreakLength(const ContentView& view);
int maxStreakLength(const ContentView& view);
std::string currentStreakText(const ContentView& view, const Clock& clock);
std::string maxStreakText(const ContentView& view, const Clock& clock);
std::string latestScoreText(const ContentView& view, const Clock& clock);

// Computed in 32-bit floating point and printed with two decimals, except the whole-number cases.
std::string averageScoreText(const ContentView& view);
std::string latestTenAverageText(const ContentView& view);
std::string winPercentageText(const ContentView& view);

}  // namespace tessarine
