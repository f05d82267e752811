#include "statistics/statistics_pass.h"

#include <algorithm>
#include <functional>

#include "catalogue/catalogue.h"
#include "session/content_view.h"

namespace tessarine {

void StatisticsPass::begin(ContentView& view, int latestDateIndex) {
  view.gamesPlayed = 0;
  view.gamesCompleted = 0;
  view.latestTenScores.fill(0);
  view.scoreInt.fill(0);
  byDate_.clear();
  byScore_.clear();
  byScoreRecent_.clear();
  std::fill(dayScores_.begin(), dayScores_.end(), -1);
  latestDateIndex_ = latestDateIndex;
}

bool StatisticsPass::count(ContentView& view, int day, int score) {
  if (day < 0 || day > latestDateIndex_ || day >= kCalendarDays) return false;
  if (score < 0 || score > kScoreSlots) return false;
  if (score >= 1) {
    view.scoreInt[score - 1] += 1;
    if (view.gamesCompleted >= kLatestScores) {
      std::move(view.latestTenScores.begin() + 1, view.latestTenScores.end(), view.latestTenScores.begin());
      view.latestTenScores[kLatestScores - 1] = score;
    } else {
      view.latestTenScores[view.gamesCompleted] = score;
    }
    view.gamesCompleted += 1;
    byDate_.push_back(day * 10 + score);
    byScore_.push_back(score * 10000 + day);
    byScoreRecent_.push_back(score * 10000 + latestDateIndex_ - day);
  }
  dayScores_[day] = score;
  view.gamesPlayed += 1;
  return true;
}

namespace {

void sortBoth(std::vector<int>& keys, std::vector<int>& ascending, std::vector<int>& descending) {
  std::sort(keys.begin(), keys.end());
  ascending = keys;
  descending.assign(keys.rbegin(), keys.rend());
}

}  // namespace

void StatisticsPass::finish(ContentView& view, std::span<const std::string> dateTexts) {
  sortBoth(byDate_, view.dateAscending, view.dateDescending);
  sortBoth(byScore_, view.scoreAscendingAscending, view.scoreDescendingDescending);
  sortBoth(byScoreRecent_, view.scoreAscendingDescending, view.scoreDescendingAscending);

  // "Unfinished" and "Empty" stay English in both languages; the score names do not.
  view.allDatesInfo.clear();
  const int lowest = std::max(view.minimumDayIndex, 0);
  for (int day = latestDateIndex_, k = 0; day >= lowest; --day, ++k) {
    const int status = dayScores_[day] < 0 ? 9 : dayScores_[day] % 10;
    std::string line = k < static_cast<int>(dateTexts.size()) ? dateTexts[k] : std::string(" ");
    line += ' ';
    if (status == 0) {
      line += "Unfinished";
    } else if (status == 9) {
      line += "Empty";
    } else {
      line += scoreName(status - 1, view.gameType, view.EnglishTranslation);
    }
    view.allDatesInfo.push_back(std::move(line));
  }
  view.activeRow = 0;
}

void StatisticsPass::latestDates(ContentView& view) const {
  view.latestAvailableDate = view.latestUnfinishedDate = view.latestWinDate = view.latestScoreDate = 1;
  view.latestScore = 0;
  for (int day = std::max(view.minimumDayIndex, 0); day <= latestDateIndex_; ++day) {
    const int score = dayScores_[day];
    const int relative = day - latestDateIndex_;
    if (score == 0) {
      view.latestUnfinishedDate = relative;
    } else if (score == -1) {
      view.latestAvailableDate = relative;
    } else if (score >= view.gameRows + 1) {
      view.latestScoreDate = relative;
      view.latestScore = score - 1;
    } else {
      view.latestWinDate = relative;
      view.latestScoreDate = relative;
      view.latestScore = score - 1;
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

void StatisticsPass::streaks(ContentView& view) const {
  const int last = latestDateIndex_;
  const int rows = view.gameRows;
  int p = 0;
  if (view.latestScore >= rows) {
    // The latest finished game was lost: no current streak, only the longest one moves.
    if (view.latestWinDate >= 0) return;
    view.maxStreakEnd = view.latestWinDate;
    view.maxStreakStart = runStart(last + view.latestWinDate, rows) - last;
    p = last + view.maxStreakStart - 1;
  } else {
    view.currentStreakStart = runStart(last + view.latestWinDate, rows) - last;
    view.maxStreakStart = view.currentStreakStart;
    view.maxStreakEnd = view.latestWinDate;
    p = last + view.currentStreakStart - 1;
  }
  // Older runs, only as long as one could still beat the longest found so far.
  while (view.maxStreakEnd - view.maxStreakStart + 1 < p) {
    bool found = false;
    while (view.maxStreakEnd - view.maxStreakStart + 1 < p && !found) {
      --p;
      found = won(p, rows);
    }
    if (!found) return;
    const int end = p;
    const int start = runStart(end, rows);
    p = start == 0 ? 0 : start - 1;
    if (end - start > view.maxStreakEnd - view.maxStreakStart) {
      view.maxStreakStart = start - last;
      view.maxStreakEnd = end - last;
    }
  }
}

}  // namespace tessarine
