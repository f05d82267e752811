// The figures of one game type, rebuilt from the day records at every refresh, and what they are
// about: the shown game type, its rows, the earliest open day and the language of their texts.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

inline constexpr int kScoreSlots = 8;
inline constexpr int kLatestScores = 10;

// The finished games of the shown type as packed keys, each list sorted its own way. Whole numbers
// with the day in the low digits, so one integer sort also gives the tie-break among equal scores.
struct ScoreLists {
  std::vector<int> dateAscending, dateDescending;
  std::vector<int> scoreAscendingAscending, scoreDescendingAscending;
  std::vector<int> scoreAscendingDescending, scoreDescendingDescending;
};

struct Statistics : ScoreLists {
  std::array<int, kScoreSlots> scoreInt{};
  std::array<int, kLatestScores> latestTenScores{};
  int gamesPlayed = 0;
  int gamesCompleted = 0;
  int latestScoreDate = 1;  // offsets from today; 1 means none
  int latestWinDate = 1;
  int latestUnfinishedDate = 1;
  int latestAvailableDate = 1;
  int latestScore = 0;
  int currentStreakStart = 2;
  int maxStreakStart = 2;
  int maxStreakEnd = 1;

  std::vector<std::string> allDatesInfo;  // index = -activeDate
};

struct StatisticsScope {
  std::string_view gameType;
  int gameRows = 6;
  int minimumDayIndex = 0;
  bool EnglishTranslation = true;
  bool thankYouFlag = false;  // dates go blank under the thank-you cover
  int latestDateIndex = 0;    // today's day index
};

}  // namespace tessarine
