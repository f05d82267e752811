#include "session_fixture.h"

namespace tessarine::testing {
namespace {

struct StreakCase {
  const char* name;
  std::vector<std::pair<int, int>> days;  // relative day, score (C: 1-6 won, 7 lost)
  int currentStreakStart, maxStreakStart, maxStreakEnd;
};

void PrintTo(const StreakCase& c, std::ostream* out) {
  *out << c.name;
}

class StatisticsStreakTest : public SessionTest, public ::testing::WithParamInterface<StreakCase> {};

TEST_P(StatisticsStreakTest, Streaks) {
  const StreakCase& c = GetParam();
  seedSettings(0);
  std::vector<std::string> records;
  for (const auto& [day, score] : c.days)
    records.push_back(dayRecord(kToday + day, "C", score, "CRANE"));
  seedRecords(records);
  start();
  EXPECT_EQ(view().currentStreakStart, c.currentStreakStart);
  EXPECT_EQ(view().maxStreakStart, c.maxStreakStart);
  EXPECT_EQ(view().maxStreakEnd, c.maxStreakEnd);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StatisticsStreakTest,
    ::testing::Values(
        StreakCase{"three_wins_today_not_played", {{-3, 2}, {-2, 3}, {-1, 4}}, -3, -3, -1},
        StreakCase{"skipped_day_splits", {{-6, 2}, {-5, 2}, {-4, 2}, {-2, 3}, {-1, 3}}, -2, -6, -4},
        StreakCase{"loss_ends_current", {{-3, 2}, {-2, 2}, {-1, 7}}, 2, -3, -2},
        StreakCase{"equal_runs_keep_the_recent", {{-9, 1}, {-8, 1}, {-5, 1}, {-4, 1}, {-1, 7}}, 2, -5, -4},
        StreakCase{"unfinished_breaks_a_run", {{-3, 1}, {-2, 0}, {-1, 1}}, -1, -1, -1},
        StreakCase{"win_on_day_zero", {{-kToday, 1}}, -kToday, -kToday, -kToday}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(StatisticsStreakTest, CountsAndLists) {
  seedSettings(0);
  std::vector<std::string> records;
  for (int day = -11; day <= -1; ++day)
    records.push_back(dayRecord(kToday + day, "C", day == -11 ? 7 : 2, "CRANE"));
  records.push_back(dayRecord(kToday, "C", 0, "CRANE"));
  records.push_back(dayRecord(kToday + 1, "C", 3, "CRANE"));   // after today: not counted
  records.push_back(dayRecord(kToday - 3, "D", 3, "CRANES"));  // another type
  seedRecords(records);
  start();
  EXPECT_EQ(view().gamesPlayed, 12);
  EXPECT_EQ(view().gamesCompleted, 11);
  EXPECT_EQ(view().scoreInt[1], 10);
  EXPECT_EQ(view().scoreInt[6], 1);
  EXPECT_EQ(view().latestTenScores, (std::array<int, 10>{2, 2, 2, 2, 2, 2, 2, 2, 2, 2}));
  EXPECT_EQ(view().dateAscending.front(), (kToday - 11) * 10 + 7);
  EXPECT_EQ(view().scoreDescendingAscending.front(), 7 * 10000 + 11);
  EXPECT_EQ(view().scoreAscendingAscending.front(), 2 * 10000 + kToday - 10);
  EXPECT_EQ(view().latestUnfinishedDate, 0);
  EXPECT_EQ(view().latestWinDate, -1);
}

}  // namespace
}  // namespace tessarine::testing
