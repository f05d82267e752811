#pragma once

#include <span>
#include <string>
#include <vector>

#include "statistics/statistics.h"

namespace tessarine {

// One pass over the day records of the shown game type: counts, histogram, the last ten scores,
// the six sorted score lists, the date list, the latest-day fields and the streaks. The session
// keeps one pass object between refreshes so the 36500-day table is refilled, never reallocated.
class StatisticsPass {
 public:
  static constexpr int kCalendarDays = 36500;

  // Resets the counters of `stats` and the day table for today `latestDateIndex`.
  void begin(Statistics& stats, int latestDateIndex);
  // One record of the shown game type, in store order. A day after today or before day 0, or a
  // score digit that does not fit the histogram, is left out so that a damaged record never
  // overruns a table. Returns whether the record was counted.
  bool count(Statistics& stats, int day, int score);
  // Sorts the score lists and rebuilds `allDatesInfo` from today down to `minimumDayIndex`;
  // `dateTexts[k]` is the shown date of the day k days before today.
  void finish(Statistics& stats, const StatisticsScope& scope, std::span<const std::string> dateTexts);
  // The latest-day fields, and the streaks that lean on them.
  void latestDates(Statistics& stats, const StatisticsScope& scope) const;
  void streaks(Statistics& stats, const StatisticsScope& scope) const;

  // -1 no record, 0 unfinished, above 0 the score.
  int scoreOfDay(int day) const { return day >= 0 && day < kCalendarDays ? dayScores_[day] : -1; }

 private:
  bool won(int day, int gameRows) const;
  int runStart(int day, int gameRows) const;  // first day of the won run that ends on `day`

  std::vector<int> dayScores_ = std::vector<int>(kCalendarDays, -1);
  int latestDateIndex_ = 0;
  std::vector<int> byDate_, byScore_, byScoreRecent_;
};

}  // namespace tessarine
