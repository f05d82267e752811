#include <gtest/gtest.h>

#include "challenge/challenge_record.h"
#include "challenge/challenge_records.h"
#include "core/match_fixture.h"

namespace tessarine::testing {
namespace {

MatchState sampleMatch() {
  MatchState m;
  m.gameType = "X";
  m.challengeIndex = 42;
  m.numPlayer = 2;
  m.board.gameLetters = 5;
  m.board.activeRow = 3;
  m.currentPosition = 17;
  m.numCellEntries = 2;
  m.numStrikes = 1;
  m.numBalls = 2;
  m.opponentGuess = m.youWalked = m.selectedIntentionalWalk = true;
  m.showKeypad = false;
  m.opponentLastGuess = "CAÑAS";
  m.playerLastGuess = " ";
  for (int cell = 0; cell < 15; ++cell)
    m.board.cellLetter[static_cast<std::size_t>(cell)] = std::string(1, char('A' + cell));
  m.board.cellLetter[3] = "Ñ";
  return m;
}

TEST(ChallengeRecord, FormatsByLength) {
  EXPECT_EQ(usedAnswerRecord(7, "C"), "0007C");
  EXPECT_EQ(usedAnswerRecord(-4, "Ñ"), "0000Ñ");
  EXPECT_EQ(resultRecord(3653, "3", MatchResult::win), "36533W");
  EXPECT_EQ(resultRecord(12, "A", MatchResult::draw), "0012AD");
  const MatchState m = sampleMatch();
  const std::string record = savedMatchRecord(m, "Café");
  EXPECT_EQ(symbolCount(record), 143u);
  EXPECT_EQ(record.substr(0, 35), "0042X2317212TFFTFFFFFFFTFFFFFFFFFFT");
  EXPECT_EQ(record.substr(record.size() - 21), "Café                ");
}

TEST(ChallengeRecord, SavedMatchReadsBack) {
  const MatchState m = sampleMatch();
  MatchState back;
  ASSERT_TRUE(readSavedMatch(savedMatchRecord(m, "Café"), back));
  EXPECT_EQ(back.gameType, "X");
  EXPECT_EQ(back.challengeIndex, 42);
  EXPECT_EQ(back.activeRow(), 3);
  EXPECT_EQ(back.currentPosition, 17);
  EXPECT_EQ(back.numBalls, 2);
  for (const auto& flag : storedMatchFlags())
    EXPECT_EQ(back.*flag.field, m.*flag.field) << flag.name;
  EXPECT_EQ(back.opponentLastGuess, "CAÑAS");
  EXPECT_EQ(back.player8thGuess, "");
  EXPECT_EQ(back.board.cellLetter, m.board.cellLetter);
  EXPECT_EQ(back.savedName, "Café");
}

TEST(ChallengeRecord, MalformedSavedRecordsAreRefused) {
  const std::string good = savedMatchRecord(sampleMatch(), "x");
  MatchState back;
  for (const std::string& bad :
       {good.substr(0, good.size() - 1), good + "y", "00a2X" + good.substr(5),
        good.substr(0, 12) + "Q" + good.substr(13), std::string("\xff") + good.substr(1)})
    EXPECT_FALSE(readSavedMatch(bad, back)) << bad;
}

TEST(ChallengeRecord, SavedNames) {
  const struct {
    const char* typed;
    std::optional<std::string> name;
  } cases[] = {{"Lunch", "Lunch"},
               {"  Lunch  ", "Lunch"},
               {"", std::nullopt},
               {"    ", std::nullopt},
               {"12345678901234567890", "12345678901234567890"},
               {"123456789012345678901", std::nullopt},
               {"ÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑ", "ÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑÑ"},
               {"Robert'); DROP TABLE x;--", std::nullopt},
               {"'; DROP TABLE x;--", "'; DROP TABLE x;--"}};
  for (const auto& c : cases)
    EXPECT_EQ(validSavedName(c.typed), c.name) << c.typed;
}

TEST(ChallengeRecords, ScanReopensTheStore) {
  const auto dir = freshFolder("store");
  const std::string saved = savedMatchRecord(sampleMatch(), "'; DROP TABLE x;--");
  {
    ChallengeDataManager store(dir);
    for (const std::string& record :
         {std::string("0001XW"), std::string("0002XL"), std::string("0003CW"), std::string("0004X"), saved,
          std::string("garbage"), std::string("0005XD")})
      store.saveEntry(record);
  }
  ChallengeDataManager store(dir);
  ChallengeRecords records(store);
  ChallengeScan scan = records.scan("X");
  EXPECT_EQ(scan.numberOfChallenges, 3);
  EXPECT_EQ(scan.numberOfWins, 1);
  EXPECT_EQ(scan.numberOfLosts, 1);
  EXPECT_EQ(scan.numberOfDraws, 1);
  EXPECT_EQ(scan.savedChallengesName, std::vector<std::string>{"'; DROP TABLE x;--"});
  EXPECT_EQ(scan.used.count, 5);  // 1, 2, 4, the saved 42 and 5; type C and the garbage are not this type's
  EXPECT_EQ(scan.used.table[4], 3);
  EXPECT_EQ(challengeStatisticsText(scan, "X", true),
            "5SL STATISTICS\n\nChallenges Played:  3\nChallenges Won:  1\nChallenges Lost:  1\nChallenges "
            "Draw:  1");
  // Deleting a saved match keeps its answer used; deleting the last score keeps the counts until a rescan.
  ASSERT_TRUE(records.deleteSaved(scan, 0));
  records.deleteLastScore(scan);
  EXPECT_EQ(scan.numberOfChallenges, 2);
  EXPECT_EQ(scan.numberOfDraws, 1);
  std::vector<std::string> left;
  for (const auto& entry : ChallengeDataManager(dir).getAllEntries())
    left.push_back(entry.text);
  EXPECT_EQ(left, (std::vector<std::string>{"0001XW", "0002XL", "0003CW", "0004X", "garbage", "0042X"}));
  std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace tessarine::testing
