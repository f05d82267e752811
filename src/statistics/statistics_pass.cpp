#include "statistics/statistics_pass.h"

#include <algorithm>
#include <functional>

#include "catalogue/catalogue.h"

namespace tessarine {

void StatisticsPass::begin(Statistics& stats, int latestDateIndex) {
  stats.gamesPlayed = 0;
  stats.gamesCompleted = 0;
  stats.latestTenScores.fill(0);
  stats.scoreInt.fill(0);
  byDate_.clear();
  byScore_.clear();
  byScoreRecent_.clear();
  std::fill(dayScores_.begin(), dayScores_.end(), -1);
  latestDateIndex_ = latestDateIndex;
}

bool StatisticsPass::count(Statistics& stats, int day, int score) {
  if (day < 0 || day > latestDateIndex_ || day >= kCalendarDays) return false;
  if (score < 0 || score > kScoreSlots) return false;
  if (score >= 1) {
    stats.scoreInt[score - 1] += 1;
    if (stats.gamesCompleted >= kLatestScores) {
      std::move(stats.latestTenScores.begin() + 1, stats.latestTenScores.end(),
                stats.latestTenScores.begin());
      stats.latestTenScores[kLatestScores - 1] = score;
    } else {
      stats.latestTenScores[stats.gamesCompleted] = score;
    }
    stats.gamesCompleted += 1;
    byDate_.push_back(day * 10 + score);
    byScore_.push_back(score * 10000 + day);
    byScoreRecent_.push_back(score * 10000 + latestDateIndex_ - day);
  }
  dayScores_[day] = score;
  stats.gamesPlayed += 1;
  return true;
}

namespace {

void sortBoth(std::vector<int>& keys, std::vector<int>& ascending, std::vector<int>& descending) {
  std::sort(keys.begin(), keys.end());
  ascending = keys;
  descending.assign(keys.rbegin(), keys.rend());
}

}  // namespace

void StatisticsPass::finish(Statistics& stats, const StatisticsScope& scope,
                            std::span<const std::string> dateTexts) {
  sortBoth(byDate_, stats.dateAscending, stats.dateDescending);
  sortBoth(byScore_, stats.scoreAscendingAscending, stats.scoreDescendingDescending);
  sortBoth(byScoreRecent_, stats.scoreAscendingDescending, stats.scoreDescendingAscending);

  // "Unfinished" and "Empty" stay English in both languages; the score names do not.
  stats.allDatesInfo.clear();
  const int lowest = std::max(scope.minimumDayIndex, 0);
  for (int day = latestDateIndex_, k = 0; day >= lowest; --day, ++k) {
    const int status = dayScores_[day] < 0 ? 9 : dayScores_[day] % 10;
    std::string line = k < static_cast<int>(dateTexts.size()) ? dateTexts[k] : std::string(" ");
    line += ' ';
    if (status == 0) {
      line += "Unfinished";
    } else if (status == 9) {
      line += "Empty";
    } else {
      line += scoreName(status - 1, scope.gameType, scope.EnglishTranslation);
    }
    stats.allDatesInfo.push_back(std::move(line));
  }
}

void StatisticsPass::latestDates(Statistics& stats, const StatisticsScope& scope) const {
  stats.latestAvailableDate = stats.latestUnfinishedDate = stats.latestWinDate = stats.latestScoreDate = 1;
  stats.latestScore = 0;
  for (int day = std::max(scope.minimumDayIndex, 0); day <= latestDateIndex_; ++day) {
    const int score = dayScores_[day];
    const int relative = day - latestDateIndex_;
    if (score == 0) {
      stats.latestUnfinishedDate = relative;
    } else if (score == -1) {
      stats.latestAvailableDate = relative;
    } else if (score >= scope.gameRows + 1) {
      stats.latestScoreDate = relative;
      stats.latestScore = score - 1;
    } else {
      stats.latestWinDate = relative;
      stats.latestScoreDate = relative;
      stats.latestScore = score - 1;
    }
  }
}

bool StatisticsPass::won(int day, int gameRows) const {
  const int score = scoreOfDay(day);
  return score >= 1 && score <= gameRows;
}

int StatisticsPass::runStart(int day, int gameRows) const {
  while (day - 1 >= 0 && won(day - 1, gameRows))
    --day;
  return day;
}

void StatisticsPass::streaks(Statistics& stats, const StatisticsScope& scope) const {
  const int last = latestDateIndex_;
  const int rows = scope.gameRows;
  int p = 0;
  if (stats.latestScore >= rows) {
    // The latest finished game was lost: no current streak, only the longest one moves.
    if (stats.latestWinDate >= 0) return;
    stats.maxStreakEnd = stats.latestWinDate;
    stats.maxStreakStart = runStart(last + stats.latestWinDate, rows) - last;
    p = last + stats.maxStreakStart - 1;
  } else {
    stats.currentStreakStart = runStart(last + stats.latestWinDate, rows) - last;
    stats.maxStreakStart = stats.currentStreakStart;
    stats.maxStreakEnd = stats.latestWinDate;
    p = last + stats.currentStreakStart - 1;
  }
  // Older runs, only as long as one could still beat the longest found so far.
  while (stats.maxStreakEnd - stats.maxStreakStart + 1 < p) {
    bool found = false;
    while (stats.maxStreakEnd - stats.maxStreakStart + 1 < p && !found) {
      --p;
      found = won(p, rows);
    }
    if (!found) return;
    const int end = p;
    const int start = runStart(end, rows);
    p = start == 0 ? 0 : start - 1;
    if (end - start > stats.maxStreakEnd - stats.maxStreakStart) {
      stats.maxStreakStart = start - last;
      stats.maxStreakEnd = end - last;
    }
  }
}

}  // namespace tessarine
