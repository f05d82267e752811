#include "statistics/statistics_texts.h"

#include <gtest/gtest.h>

#include "catalogue/catalogue.h"
#include "session/content_view.h"
#include "session/game_setup.h"

namespace tessarine {
namespace {

struct FiguresCase {
  const char* name;
  std::vector<int> scores;  // finished games of type "C" (6 rows; 7 is "Picking up") in store order
  std::string average, latestTen, winPercentage;
};

class StatisticsFiguresTest : public ::testing::TestWithParam<FiguresCase> {};

TEST_P(StatisticsFiguresTest, AveragesAndPercentages) {
  ContentView view;
  view.gameType = "C";
  applyCatalogue(view);
  for (const int score : GetParam().scores) {
    view.scoreInt[score - 1] += 1;
    if (view.gamesCompleted < kLatestScores) view.latestTenScores[view.gamesCompleted] = score;
    view.gamesCompleted += 1;
  }
  EXPECT_EQ(averageScoreText(view, view.statisticsScope()), GetParam().average);
  EXPECT_EQ(latestTenAverageText(view, view.statisticsScope()), GetParam().latestTen);
  EXPECT_EQ(winPercentageText(view, view.statisticsScope()), GetParam().winPercentage);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StatisticsFiguresTest,
    ::testing::Values(FiguresCase{"none", {}, "", "0.00", ""},
                      FiguresCase{"six_games_sum_24", {4, 4, 4, 4, 4, 4}, "4.00", "2.40", "100"},
                      FiguresCase{"losses_only", {7, 7}, "7.00", "1.40", "0"},
                      FiguresCase{"picking_up_counts_seven", {2, 3, 7}, "4.00", "1.20", "66.67"},
                      FiguresCase{"one_win_two_losses", {3, 7, 7}, "5.67", "1.70", "33.33"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(StatisticsStreakTexts, LossAfterWins) {
  ContentView view;
  view.gameType = "C";
  applyCatalogue(view);
  view.gamesCompleted = view.gamesPlayed = 3;
  view.latestWinDate = -2;
  view.latestScoreDate = -1;
  view.latestScore = view.gameRows;  // the latest finished game was lost
  view.maxStreakStart = -3;
  view.maxStreakEnd = -2;
  const FixedClock clock({2024, 1, 10, 12, 0, 0});
  EXPECT_EQ(currentStreakLength(view, view.statisticsScope()), 0);
  EXPECT_EQ(currentStreakText(view, view.statisticsScope(), clock), "Last win January 8, 2024");
  EXPECT_EQ(maxStreakLength(view, view.statisticsScope()), 2);
  EXPECT_EQ(maxStreakText(view, view.statisticsScope(), clock), "January 7, 2024 - January 8, 2024");
  EXPECT_EQ(latestScoreText(view, view.statisticsScope(), clock), "January 9, 2024 Picking up");
}

}  // namespace
}  // namespace tessarine
