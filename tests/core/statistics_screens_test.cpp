#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "statistics/fifth_view.h"
#include "statistics/second_view.h"
#include "statistics/sixth_view.h"
#include "statistics/statistics_share.h"

namespace tessarine {
namespace {

SecondView figuresOf(const char* gameType, bool english, int played, int completed) {
  SecondView view;
  view.gameType = gameType;
  view.EnglishTranslation = english;
  view.gamesPlayed = played;
  view.gamesCompleted = completed;
  view.averageScore = "3.50";
  view.latestTenAverage = "3.15";
  view.winPercentage = "90.00";
  view.currentStreakLength = 2;
  view.currentStreak = "A - B";
  view.maxStreakLength = 4;
  view.maxStreak = "C - D";
  return view;
}

bool showsTenGameAverage(const SecondView& view) {
  for (const FigureLine& line : view.figures())
    if (line.value == view.latestTenAverage) return true;
  return false;
}

// The screen gates the ten-game average on games played, the share text on games finished.
struct TenthGameCase {
  int played, completed;
  bool onScreen, inText;
};

TEST(SecondViewTest, TheTenthGameGate) {
  const TenthGameCase cases[] = {{9, 9, false, false}, {10, 9, true, false}, {10, 10, true, true}};
  for (const TenthGameCase& c : cases) {
    const SecondView view = figuresOf("C", true, c.played, c.completed);
    EXPECT_EQ(showsTenGameAverage(view), c.onScreen) << c.played << "/" << c.completed;
    EXPECT_EQ(statisticsShareText(view).find("Latest 10") != std::string::npos, c.inText)
        << c.played << "/" << c.completed;
  }
}

TEST(SecondViewTest, ListButtonIsDeadBeforeTheFirstGame) {
  SecondView view = figuresOf("C", true, 0, 0);
  EXPECT_EQ(view.listButton(), (ButtonLook{"list.bullet.rectangle", "gray", 0.4, false}));
  EXPECT_FALSE(view.openList());
  EXPECT_FALSE(view.showingFifthSheet);
  view.gamesPlayed = 1;
  EXPECT_TRUE(view.openList());
}

struct StatisticsTextCase {
  const char* name;
  const char* gameType;
  bool english;
  int completed;
  std::string expected;
};

class StatisticsShareTest : public ::testing::TestWithParam<StatisticsTextCase> {};

TEST_P(StatisticsShareTest, Text) {
  const StatisticsTextCase& c = GetParam();
  EXPECT_EQ(statisticsShareText(figuresOf(c.gameType, c.english, c.completed, c.completed)), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StatisticsShareTest,
    ::testing::Values(
        StatisticsTextCase{"english_ten_games", "C", true, 10,
                           "STATISTICS\nTessarine 5L\n\nGames Completed:  10\nAverage Score:  3.50\n"
                           "Latest 10 Game Average:  3.15\nWin %:  90.00\nCurrent Streak:  2\nA - B\n"
                           "Max Streak:  4\nC - D"},
        // The longest streak's label keeps its small letter.
        StatisticsTextCase{"spanish_type_w", "W", false, 12,
                           "ESTADÍSTICAS\nTessarina 4LS\n\nJuegos completados:  12\nPuntuación media:  3.50\n"
                           "Promedio de los últimos 10 juegos:  3.15\nGanar %:  90.00\nRacha actual:  2\n"
                           "A - B\nracha máxima:  4\nC - D"},
        // Unlike the game text, "XX" keeps its own line here.
        StatisticsTextCase{"type_y_code", "Y", true, 1,
                           "STATISTICS\nTessarine XX\n\nGames Completed:  1\nAverage Score:  3.50\n"
                           "Win %:  90.00\nCurrent Streak:  2\nA - B\nMax Streak:  4\nC - D"}),
    [](const auto& info) { return std::string(info.param.name); });

// Finished games of "C" on January 10, 2024 (day 649): April 3, 2022 at par, January 9, 2024 a
// birdie, and a loss on July 10, 2022.
FifthView datesAndScores(bool english) {
  SecondView second = figuresOf("C", english, 3, 3);
  second.daysFromApril1st = 650;
  second.dateAscending = {24, 1007, 6483};
  second.dateDescending = {6483, 1007, 24};
  second.scoreAscendingAscending = {30648, 40002, 70100};
  second.scoreDescendingDescending = {70100, 40002, 30648};
  second.scoreAscendingDescending = {30001, 40647, 70549};
  second.scoreDescendingAscending = {70549, 40647, 30001};
  return makeFifthView(second);
}

constexpr const char* kParDay = "April 3, 2022 Par";
constexpr const char* kBirdieDay = "January 9, 2024 Birdie";
constexpr const char* kLossDay = "July 10, 2022 Picking up";

struct SortCase {
  std::vector<SortChoice> presses;
  std::vector<std::string> lines;
};

TEST(FifthViewTest, SortMenuPicksTheListAndItsTieBreak) {
  using S = SortChoice;
  const SortCase cases[] = {
      {{}, {kBirdieDay, kLossDay, kParDay}},
      {{S::cancel}, {kBirdieDay, kLossDay, kParDay}},
      {{S::dateAscending}, {kParDay, kLossDay, kBirdieDay}},
      {{S::scoreAscending}, {kBirdieDay, kParDay, kLossDay}},
      {{S::scoreDescending}, {kLossDay, kParDay, kBirdieDay}},
      {{S::dateAscending, S::scoreAscending}, {kBirdieDay, kParDay, kLossDay}},
      {{S::dateAscending, S::scoreDescending}, {kLossDay, kParDay, kBirdieDay}},
      {{S::scoreAscending, S::dateAscending}, {kParDay, kLossDay, kBirdieDay}},
  };
  for (const SortCase& c : cases) {
    FifthView view = datesAndScores(true);
    for (const SortChoice press : c.presses)
      view.pressSort(press);
    EXPECT_EQ(view.lines(), c.lines) << c.presses.size() << " presses";
  }
}

// Each date order followed by a score order reaches its own list; the lines alone cannot tell
// two lists with the same games apart.
TEST(FifthViewTest, FlagCombinationsChooseTheirList) {
  using S = SortChoice;
  const struct {
    std::vector<SortChoice> presses;
    std::vector<int> ScoreLists::*list;
  } cases[] = {
      {{S::dateDescending, S::scoreAscending}, &ScoreLists::scoreAscendingDescending},
      {{S::dateAscending, S::scoreAscending}, &ScoreLists::scoreAscendingAscending},
      {{S::dateAscending, S::scoreDescending}, &ScoreLists::scoreDescendingAscending},
      {{S::dateDescending, S::scoreDescending}, &ScoreLists::scoreDescendingDescending},
      {{S::scoreDescending, S::scoreAscending}, &ScoreLists::scoreAscendingDescending},
      {{S::scoreAscending, S::dateDescending}, &ScoreLists::dateDescending},
  };
  for (const auto& c : cases) {
    FifthView view = datesAndScores(true);
    for (const SortChoice press : c.presses)
      view.pressSort(press);
    EXPECT_EQ(view.listInForce(), &(view.*c.list));
  }
}

TEST(FifthViewTest, SpanishListAndItsText) {
  FifthView view = datesAndScores(false);
  EXPECT_EQ(view.title, "Dates and Scores");
  EXPECT_EQ(view.sortMenuTitle(), "¿Ordenar fechas y puntajes?");
  view.pressSort(SortChoice::dateAscending);
  EXPECT_EQ(view.lines(), (std::vector<std::string>{"3 abril, 2022 Par", "10 julio, 2022 Recogiendo",
                                                    "9 enero, 2024 Pajarito"}));
  view.pressShare();
  EXPECT_TRUE(view.sharedResults);
  EXPECT_EQ(listShareText(view),
            "3 abril, 2022,Par,0\n10 julio, 2022,Recogiendo,3\n9 enero, 2024,Pajarito,-1");
}

TEST(FifthViewTest, DateFormatChangesNothingShown) {
  FifthView view = datesAndScores(true);
  const std::vector<std::string> before = view.lines();
  view.openDateFormatMenu();
  view.chooseDateFormat(kDateFormats[6]);
  EXPECT_EQ(view.dateFormat, "yyyy/MM/dd");
  EXPECT_EQ(view.lines(), before);
  EXPECT_EQ(listShareText(view),
            "January 9, 2024,Birdie,-1\nJuly 10, 2022,Picking up,3\nApril 3, 2022,Par,0");
}

// Played but unfinished games only: the list is empty and sharing it gives nothing, no crash.
TEST(FifthViewTest, EmptyListSharesNothing) {
  SecondView second = figuresOf("C", true, 2, 0);
  second.daysFromApril1st = 650;
  ASSERT_TRUE(second.openList());
  FifthView view = makeFifthView(second);
  EXPECT_TRUE(view.lines().empty());
  view.pressShare();
  EXPECT_EQ(listShareText(view), std::nullopt);
}

TEST(FifthViewTest, DatesGoBlankUnderTheThankYouCover) {
  FifthView view = datesAndScores(true);
  view.thankYouFlag = true;
  EXPECT_EQ(view.lines().front(), "  Birdie");
}

struct Bar {
  int length;
  TileColor color;
  friend bool operator==(const Bar&, const Bar&) = default;
};

struct BarsCase {
  const char* name;
  const char* gameType;
  std::array<int, kScoreSlots> scoreInt;
  std::vector<Bar> bars;  // the bars shown
};

class SixthViewTest : public ::testing::TestWithParam<BarsCase> {};

TEST_P(SixthViewTest, LengthsAndColours) {
  SecondView second = figuresOf(GetParam().gameType, true, 1, 1);
  second.scoreInt = GetParam().scoreInt;
  SixthView view = makeSixthView(second);
  view.appear();
  std::vector<Bar> bars;
  for (int bar = 0; bar < view.shownBars(); ++bar)
    bars.push_back({static_cast<int>(view.rawLength[bar]), view.cellBackground[bar]});
  EXPECT_EQ(bars, GetParam().bars);
}

constexpr TileColor R = TileColor::red, Y = TileColor::yellow, B = TileColor::blue, G = TileColor::green,
                    P = TileColor::purple;

INSTANTIATE_TEST_SUITE_P(
    Cases, SixthViewTest,
    ::testing::Values(
        // The "Picking up" count (300) has no bar and does not set the scale. M is 200: half of it
        // is yellow, 6 is above M/40 and gets the lowest step, 5 is not and keeps its start.
        BarsCase{"seven_rows",
                 "A",
                 {200, 100, 6, 5, 0, 151, 101, 300},
                 {{255, G}, {125, Y}, {10, R}, {5, R}, {5, R}, {190, G}, {130, B}}},
        BarsCase{
            "five_rows_top_step", "E", {100, 99, 0, 0, 0, 7}, {{255, G}, {250, G}, {5, R}, {5, R}, {5, R}}},
        BarsCase{"picking_up_only", "C", {0, 0, 0, 0, 0, 0, 4}, std::vector<Bar>(6, Bar{5, R})},
        BarsCase{"outside_the_classes", "Ó", {1, 2}, std::vector<Bar>(6, Bar{255, P})}),
    [](const auto& info) { return std::string(info.param.name); });

// A bar that no step reaches starts from the length it shows, so each appearance shrinks it.
TEST(SixthViewBars, KeptBarShrinksOnEachAppearance) {
  SecondView second = figuresOf("C", true, 1, 1);
  second.scoreInt = {200, 5};
  SixthView view = makeSixthView(second, 255.0);
  view.appear();
  EXPECT_DOUBLE_EQ(view.cellFrameWidth[1], 5.0 * 0.7);
  view.appear();
  EXPECT_DOUBLE_EQ(view.cellFrameWidth[1], 5.0 * 0.7 * 0.7);
  EXPECT_DOUBLE_EQ(view.cellFrameWidth[0], 255.0 * 0.7);
}

}  // namespace
}  // namespace tessarine
