#include "session/session_texts.h"
#include "session_fixture.h"

namespace tessarine::testing {
namespace {

using SessionDaysTest = SessionTest;

TEST_F(SessionDaysTest, FirstLaunchOpensTheLastFifteenDays) {
  start();
  EXPECT_EQ(view().gameType, "C");
  EXPECT_EQ(view().minimumDayIndex, kToday + 1 - 15);
  EXPECT_EQ(view().allDatesInfo.size(), 15u);
  EXPECT_EQ(view().allDatesInfo[0], "January 10, 2024 Empty");
  EXPECT_EQ(row(0), ".....");
}

TEST_F(SessionDaysTest, MidnightInTheBackgroundKeepsThePlayerOnTheirDay) {
  clock_.set({2024, 1, 10, 23, 50, 0});
  start();
  play("CRANE");
  session_->changePhase(ScenePhase::inactive);
  EXPECT_EQ(session_->displayDate(0), " ") << "dates go blank under the cover";
  session_->changePhase(ScenePhase::background);
  clock_.set({2024, 1, 11, 0, 10, 0});
  session_->changePhase(ScenePhase::active);
  EXPECT_EQ(view().activeDate, -1);
  EXPECT_EQ(view().latestDateIndex, kToday + 1);
  EXPECT_FALSE(view().disableCurrent);
  EXPECT_FALSE(view().disableFirst);
  EXPECT_EQ(row(0), "CRANE") << "yesterday's game is still on the board";
  play("WIELD");
  EXPECT_EQ(storedRecords().back().substr(0, 6), "0649C2");
}

TEST_F(SessionDaysTest, DuplicateRecordsAreRemovedDownToTheLatest) {
  seedSettings(0);
  seedRecords({dayRecord(kToday, "C", 0, "CRANE"), dayRecord(kToday - 5, "C", 4, "CRANESLATEPLANTWIELD"),
               dayRecord(kToday, "C", 0, "CRANEFIELD"), dayRecord(kToday, "C", 0, "CRANEFIELDTOWEL")});
  start();
  EXPECT_EQ(row(2), "TOWEL") << "the last record of the day is the one replayed";
  EXPECT_EQ(view().activeRow, 3);
  EXPECT_EQ(view().gamesPlayed, 2);
  const auto records = storedRecords();
  ASSERT_EQ(records.size(), 2u);
  EXPECT_EQ(records[1].substr(6, 15), "CRANEFIELDTOWEL");
}

struct ReconcileCase {
  const char* name;
  std::string stored;  // score digit, then the rows
  char corrected;
};

void PrintTo(const ReconcileCase& c, std::ostream* out) {
  *out << c.name;
}

class SessionReconcileTest : public SessionTest, public ::testing::WithParamInterface<ReconcileCase> {};

TEST_P(SessionReconcileTest, TheReplayDecidesTheStoredScore) {
  const ReconcileCase& c = GetParam();
  seedSettings(0);
  seedRecords({dayRecord(kToday, "C", c.stored[0] - '0', c.stored.substr(1))});
  start();
  const auto records = storedRecords();
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0][5], c.corrected);
  EXPECT_EQ(records[0].substr(6, c.stored.size() - 1), c.stored.substr(1)) << "the rows are kept";
}

INSTANTIATE_TEST_SUITE_P(Scores, SessionReconcileTest,
                         ::testing::Values(ReconcileCase{"win stored unfinished", "0CRANEFIELDWIELD", '3'},
                                           ReconcileCase{"unfinished stored won", "4CRANEFIELD", '0'},
                                           ReconcileCase{"loss stored unfinished",
                                                         "0CRANESLATEPLANTGHOSTBLIMPCHUMP", '7'},
                                           ReconcileCase{"right score kept", "2CRANEWIELD", '2'}),
                         [](const auto& info) {
                           std::string name = info.param.name;
                           for (char& c : name)
                             c = c == ' ' ? '_' : c;
                           return name;
                         });

struct DateBarCase {
  const char* name;
  std::vector<std::pair<int, int>> days;  // relative day, score
  std::string label, value;
  int latestOpen;  // activeDate after the latest-open-day button
};

void PrintTo(const DateBarCase& c, std::ostream* out) {
  *out << c.name;
}

class SessionDateBarTest : public SessionTest, public ::testing::WithParamInterface<DateBarCase> {};

TEST_P(SessionDateBarTest, LatestOpenDay) {
  const DateBarCase& c = GetParam();
  seedSettings(kToday - 2);  // three days open
  std::vector<std::string> records;
  for (const auto& [day, score] : c.days)
    records.push_back(dayRecord(kToday + day, "C", score, score == 0 ? "CRANE" : "WIELD"));
  seedRecords(records);
  start();
  EXPECT_EQ(latestOpenLabel(view()), c.label);
  EXPECT_EQ(latestOpenValue(view(), clock_), c.value);
  session_->goToLatestOpen();
  EXPECT_EQ(view().activeDate, c.latestOpen);
  EXPECT_EQ(view().disableCurrent, c.latestOpen == 0);
}

INSTANTIATE_TEST_SUITE_P(Rules, SessionDateBarTest,
                         ::testing::Values(DateBarCase{"all played",
                                                       {{-2, 1}, {-1, 1}, {0, 1}},
                                                       "Latest available day:",
                                                       "All available games have been played.",
                                                       0},
                                           DateBarCase{"today unfinished beats an older empty day",
                                                       {{-1, 1}, {0, 0}},
                                                       "Latest unfinished day:",
                                                       "January 10, 2024",
                                                       0},
                                           DateBarCase{"the later empty day wins",
                                                       {{-2, 0}, {0, 1}},
                                                       "Latest unfinished day:",
                                                       "January 8, 2024",
                                                       -1},
                                           DateBarCase{"an unfinished day older than an empty one",
                                                       {{-1, 0}},
                                                       "Latest unfinished day:",
                                                       "January 9, 2024",
                                                       0}),
                         [](const auto& info) {
                           std::string name = info.param.name;
                           for (char& c : name)
                             c = c == ' ' ? '_' : c;
                           return name;
                         });

TEST_F(SessionDaysTest, DateListAndButtons) {
  start();
  session_->pickDate(3);
  EXPECT_EQ(view().activeDate, -3);
  EXPECT_FALSE(view().disableCurrent);
  session_->openDateList();
  EXPECT_EQ(view().selectedDateIndex, 3) << "the wheel opens on the shown day";
  session_->pickDate(99);
  EXPECT_EQ(view().activeDate, -3) << "a line that is not there changes nothing";
  session_->goForward();
  EXPECT_EQ(view().activeDate, -3) << "no forward arrow in a normal build";
  play("CRANE");
  EXPECT_EQ(storedRecords()[0].substr(0, 5), "0646C");
  session_->goToToday();
  EXPECT_EQ(view().activeDate, 0);
  EXPECT_TRUE(view().disableCurrent);
  EXPECT_EQ(view().allDatesInfo[3], "January 7, 2024 Unfinished");
  setOption(&ContentView::EnglishTranslation, false);
  EXPECT_EQ(view().allDatesInfo[3], "7 enero, 2024 Unfinished") << "the status word stays English";
}

TEST_F(SessionDaysTest, ChristmasBonusIsGrantedOnce) {
  clock_.set({2023, 12, 25, 9, 0, 0});
  seedSettings(620);
  start();
  session_->changePhase(ScenePhase::active);
  EXPECT_TRUE(view().showAlert4);
  EXPECT_EQ(view().minimumDayIndex, 600);
  EXPECT_EQ(view().allDatesInfo.size(), 34u) << "the refresh shows the opened days";
  session_->dismissChristmasAlert();
  session_->changePhase(ScenePhase::inactive);
  session_->changePhase(ScenePhase::active);
  EXPECT_FALSE(view().showAlert4);
  restart();
  session_->changePhase(ScenePhase::active);
  EXPECT_FALSE(view().showAlert4);
  EXPECT_EQ(view().minimumDayIndex, 600);
}

TEST_F(SessionDaysTest, DamagedRecordsAreSkippedAndKept) {
  seedSettings(0);
  seedRecords({"garbage", dayRecord(kToday, "C", 0, "CRANE")});
  start();
  EXPECT_EQ(row(0), "CRANE");
  EXPECT_NE(log_.str().find("Skipped day record 0"), std::string::npos);
  EXPECT_EQ(storedRecords().size(), 2u);
}

}  // namespace
}  // namespace tessarine::testing
