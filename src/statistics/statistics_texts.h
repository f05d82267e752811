#pragma once

#include <string>

#include "catalogue/clock.h"

namespace tessarine {

struct Statistics;
struct StatisticsScope;

// Figures derived on demand from the statistics pass, for the statistics screen and the share
// text. Dates are the shown dates (blank under the thank-you cover); texts follow
// `EnglishTranslation`.
int currentStreakLength(const Statistics& stats, const StatisticsScope& scope);
int maxStreakLength(const Statistics& stats, const StatisticsScope& scope);
std::string currentStreakText(const Statistics& stats, const StatisticsScope& scope, const Clock& clock);
std::string maxStreakText(const Statistics& stats, const StatisticsScope& scope, const Clock& clock);
std::string latestScoreText(const Statistics& stats, const StatisticsScope& scope, const Clock& clock);
// The day to go back to: the latest unfinished day, else the latest day without a record.
std::string unfinishedTitle(const Statistics& stats, const StatisticsScope& scope);
std::string unfinishedDate(const Statistics& stats, const StatisticsScope& scope, const Clock& clock);

// Computed in 32-bit floating point and printed with two decimals, except the whole-number cases.
std::string averageScoreText(const Statistics& stats, const StatisticsScope& scope);
std::string latestTenAverageText(const Statistics& stats, const StatisticsScope& scope);
std::string winPercentageText(const Statistics& stats, const StatisticsScope& scope);

}  // namespace tessarine
