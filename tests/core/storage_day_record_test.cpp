#include <gtest/gtest.h>

#include <sstream>

#include "catalogue/catalogue.h"
#include "session/day_store.h"
#include "session/game_setup.h"
#include "storage/day_record.h"
#include "storage_test_support.h"

namespace tessarine {
namespace {

using testing_support::reopenedTexts;
using testing_support::TempDir;
using testing_support::texts;
using Texts = std::vector<std::string>;

const std::string kNoCells(kRecordCells, ' ');

ContentView viewOf(const std::string& gameType, const std::vector<std::string>& cells) {
  ContentView view;
  view.gameType = gameType;
  applyCatalogue(view);
  for (std::size_t c = 0; c < cells.size(); ++c)
    view.cellLetter[c] = cells[c];
  return view;
}

TEST(DayRecord, MarkDigitsFollowTheOrderOfDecision) {
  ContentView view = viewOf("C", {});
  view.singleHint[0] = view.usedHints[0] = true;      // hint mark wins over everything
  view.usedHints[1] = view.smartModeError[1] = true;  // used hints beat a Smart Mode error
  view.smartModeError[2] = view.validGuessError[2] = true;
  view.validGuessError[3] = view.smartModeCorrect[3] = true;
  view.smartModeCorrect[4] = true;
  const std::string off = dayRecordOf(view, 5, 0, false);
  const std::string on = dayRecordOf(view, 5, 0, true);
  ASSERT_EQ(off.size(), 62u);
  EXPECT_EQ(off.substr(56), "752410");
  EXPECT_EQ(on.substr(56), "763410");

  ContentView restored;
  EXPECT_FALSE(restoreRowMarks(restored, "752410"));
  EXPECT_TRUE(restoreRowMarks(restored, "  6   "));
  EXPECT_TRUE(restoreRowMarks(restored, "000300"));
  EXPECT_EQ(restored.singleHint, (RowMarks{true, false, false, false, false, false}));
  EXPECT_EQ(restored.usedHints, (RowMarks{false, true, true, false, false, false}));
  EXPECT_EQ(restored.smartModeError, (RowMarks{false, false, true, true, false, false}));
  EXPECT_EQ(restored.validGuessError, (RowMarks{false, false, false, true, false, false}));
  EXPECT_EQ(restored.smartModeCorrect, (RowMarks{false, false, false, false, true, false}));
}

struct StoreCase {
  const char* name;
  LocalDateTime now;
  int latestDateIndex;
  int activeDate;
  int score;
  std::string expectedPrefix;
  int expectedActiveDate;
};

class StoreDay : public testing::TestWithParam<StoreCase> {};

TEST_P(StoreDay, WritesTheShownDayAndCountsTheWin) {
  const StoreCase& c = GetParam();
  TempDir dir;
  {
    CoreDataManager coreDM(dir.path());
    ContentView view = viewOf("C", {"C", "R", "A", "N", "E", "S", "L", "A", "T", "E"});
    view.smartModeCorrect[0] = true;
    view.latestDateIndex = c.latestDateIndex;
    view.activeDate = c.activeDate;
    FixedClock clock(c.now);
    storeDay(view, coreDM, clock, c.score, false);
    EXPECT_EQ(view.activeDate, c.expectedActiveDate);
    EXPECT_EQ(view.scoreInt[1], c.score == 2 ? 1 : 0);
  }
  const auto stored = reopenedTexts<CoreDataManager>(dir.path());
  ASSERT_EQ(stored.size(), 1u);
  EXPECT_EQ(stored[0], c.expectedPrefix + "CRANESLATE" + std::string(40, ' ') + "100000");
}

INSTANTIATE_TEST_SUITE_P(
    DayRecord, StoreDay,
    testing::Values(StoreCase{"Today", {2023, 12, 25, 9}, 633, 0, 0, "0633C0", 0},
                    StoreCase{"Yesterday", {2023, 12, 25, 9}, 633, -1, 2, "0632C2", -1},
                    StoreCase{"BeforeTheFirstDayIsZero", {2022, 4, 2, 9}, 1, -5, 0, "0000C0", -5},
                    // After midnight without a scene change the whole index is added, as always.
                    StoreCase{"AfterMidnight", {2023, 12, 26, 0, 5}, 633, -2, 0, "1265C0", 631},
                    StoreCase{"UnknownTodayAddsNothing", {2023, 12, 26, 0, 5}, -1, -2, 0, "0632C0", -2},
                    StoreCase{"FiveDigitsFromDay10000", {2049, 8, 17, 9}, 10000, 0, 0, "10000C0", 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DayRecord, ReadsBackFromDiskCountingCharactersNotBytes) {
  TempDir dir;
  {
    CoreDataManager coreDM(dir.path());
    ContentView view = viewOf("Ñ", {"Ñ", "A", "N", "D", "U", "Ñ", "O", "S", "   ", "Ñ"});
    view.smartModeError[1] = true;
    coreDM.saveEntry(dayRecordOf(view, 700, 0, true));
  }
  CoreDataManager reopened(dir.path());
  std::ostringstream log;
  const auto records = readDayRecords(reopened, log);
  EXPECT_EQ(log.str(), "");
  ASSERT_EQ(records.size(), 1u);
  const DayRecord& r = records[0];
  EXPECT_EQ(r.key(), "0700Ñ");
  EXPECT_EQ(r.dayIndex, 700);
  EXPECT_EQ(r.gameType, "Ñ");
  EXPECT_EQ(r.score, 0);
  EXPECT_EQ(r.tileText(), "0700Ñ0ÑANDUÑOS Ñ");  // the blank inside is the empty cell
  EXPECT_EQ(r.marks(), "030000");
  EXPECT_EQ(recordCharacter(r, r.firstCell + 5), "Ñ");
  EXPECT_EQ(restoredCells(r), (std::vector<std::string>{"Ñ", "A", "N", "D", "U", "Ñ", "O", "S", " ", "Ñ"}));
  ContentView view;
  EXPECT_TRUE(restoreRowMarks(view, r.marks()));
  EXPECT_TRUE(view.smartModeError[1]);
}

struct MalformedCase {
  const char* name;
  std::string text;
  const char* problem;
};

class MalformedRecord : public testing::TestWithParam<MalformedCase> {};

TEST_P(MalformedRecord, IsSkippedWithOneLineAndKept) {
  TempDir dir;
  CoreDataManager coreDM(dir.path());
  const std::string good = "0633C0CRANE" + std::string(45, ' ') + "000000";
  coreDM.saveEntry(good);
  coreDM.saveEntry(GetParam().text);
  std::ostringstream log;
  const auto records = readDayRecords(coreDM, log);
  ASSERT_EQ(records.size(), 1u);
  EXPECT_EQ(records[0].entry.text, good);
  const std::string line = log.str();
  EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << line;
  EXPECT_NE(line.find("day record 1"), std::string::npos) << line;
  EXPECT_NE(line.find(GetParam().problem), std::string::npos) << line;
  EXPECT_EQ(texts(coreDM), (std::vector<std::string>{good, GetParam().text}));
}

INSTANTIATE_TEST_SUITE_P(
    DayRecord, MalformedRecord,
    testing::Values(MalformedCase{"TooShort", "0633C0CRANE", "too short (11 of 62"},
                    MalformedCase{"LetterInDay", "06x3C0" + kNoCells + "000000", "character 2 of the day"},
                    MalformedCase{"LetterAsScore", "0633Cx" + kNoCells + "000000", "(the score)"},
                    MalformedCase{"ScoreBeyondRows", "0633E7" + kNoCells + "000000", "score 7 is beyond 6"},
                    MalformedCase{"UnknownType", "0633Ó0" + kNoCells + "000000", "unknown game type"},
                    MalformedCase{"BadMark", "0633C0" + kNoCells + "00x000", "(a row mark)"},
                    MalformedCase{"InvalidUtf8", "0633C0\xC3" + kNoCells + "00000", "not valid UTF-8"},
                    MalformedCase{"Empty", "", "too short (0 of 62"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DayRecord, PaddingLengthensOldRecordsInPlaceOfOrder) {
  TempDir dir;
  const std::string oldFirst = "0010C1CRANE";
  const std::string oldSecond = "0011Ñ0ÑU";
  {
    CoreDataManager coreDM(dir.path());
    coreDM.saveEntry(oldFirst);
    coreDM.saveEntry(oldSecond);
    padDayRecords(coreDM, std::cout);
  }
  const auto padded = reopenedTexts<CoreDataManager>(dir.path());
  ASSERT_EQ(padded.size(), 2u);
  EXPECT_EQ(padded[0], oldFirst + std::string(51, ' '));
  EXPECT_EQ(padded[1], oldSecond + std::string(54, ' '));  // "Ñ" twice: 8 characters, 10 bytes

  CoreDataManager coreDM(dir.path());
  std::ostringstream log;
  const auto records = readDayRecords(coreDM, log);
  ASSERT_EQ(records.size(), 2u);
  EXPECT_EQ(records[0].tileText(), oldFirst);
  EXPECT_EQ(restoredCells(records[0]).size(), 5u);
  ContentView view;
  EXPECT_FALSE(restoreRowMarks(view, records[0].marks()));
  EXPECT_EQ(view.smartModeCorrect, RowMarks{});
}

TEST(DayRecord, PaddingLooksOnlyAtTheFirstRecord) {
  TempDir dir;
  CoreDataManager coreDM(dir.path());
  const std::vector<std::string> stored = {"0010C1CRANE" + std::string(51, ' '), "0011C0"};
  for (const auto& text : stored)
    coreDM.saveEntry(text);
  padDayRecords(coreDM, std::cout);
  EXPECT_EQ(texts(coreDM), stored);
}

// A failure between two records (the process killed, the disk full) must leave the old records
// as they were and in their order, and the next launch pads them all.
TEST(DayRecord, PaddingIsAllOrNothingAndKeepsTheOrder) {
  TempDir dir;
  const Texts old = {"0010C1CRANE", "0011C0SLATE", "0012C2TOWELWIELD", "0013C0"};
  Texts padded;
  for (const auto& text : old)
    padded.push_back(text + std::string(62 - text.size(), ' '));
  {
    CoreDataManager coreDM(dir.path());
    for (const auto& text : old)
      coreDM.saveEntry(text);
    testing_support::OtherConnection other(dir.path() / "TessarineCoreDataModel.sqlite");
    for (const char* event : {"INSERT", "UPDATE"}) {
      const std::string trigger =
          std::string("CREATE TRIGGER fail_") + event + " BEFORE " + event +
          " ON entries WHEN NEW.text LIKE '0012%' BEGIN SELECT RAISE(ABORT, 'full'); END;";
      ASSERT_TRUE(other.exec(trigger.c_str()));
    }
    testing::internal::CaptureStdout();
    std::ostringstream log;
    padDayRecords(coreDM, log);
    EXPECT_EQ(testing::internal::GetCapturedStdout().rfind("Failed to save", 0), 0u);
    EXPECT_EQ(reopenedTexts<CoreDataManager>(dir.path()), old);
    ASSERT_TRUE(other.exec("DROP TRIGGER fail_INSERT; DROP TRIGGER fail_UPDATE;"));
  }
  CoreDataManager coreDM(dir.path());
  std::ostringstream log;
  padDayRecords(coreDM, log);
  EXPECT_EQ(reopenedTexts<CoreDataManager>(dir.path()), padded);
  EXPECT_EQ(log.str().find("Padded day record 0 \"0010C1CRANE\""), 0u) << log.str();
}

// Padding never turns a record it cannot read into blanks: the reader names it instead.
TEST(DayRecord, PaddingLeavesUnreadableRecordsAsTheyAre) {
  TempDir dir;
  CoreDataManager coreDM(dir.path());
  const Texts stored = {"", "\xC3", "0011X", "0012C0CRANE"};
  for (const auto& text : stored)
    coreDM.saveEntry(text);
  std::ostringstream log;
  padDayRecords(coreDM, log);
  EXPECT_EQ(texts(coreDM), (Texts{"", "\xC3", "0011X", "0012C0CRANE" + std::string(51, ' ')}));
  EXPECT_EQ(log.str(), "Padded day record 3 \"0012C0CRANE\" to 62 characters\n");
}

}  // namespace
}  // namespace tessarine
