#include "session/session_texts.h"
#include "session_fixture.h"

namespace tessarine::testing {
namespace {

struct GameCase {
  const char* name;
  bool smartMode;
  std::vector<std::string> guesses;
  std::vector<std::string> colours;  // of each row after the last guess
  int activeRow;
  bool showKeypad;
  char storedScore;  // the score digit of the day record
  std::string scoreLine;
  std::string afterRelaunch = "";  // rows 0-2 after a relaunch, when they differ from before
};

void PrintTo(const GameCase& game, std::ostream* out) {
  *out << game.name;
}

class SessionGameTest : public SessionTest, public ::testing::WithParamInterface<GameCase> {};

TEST_P(SessionGameTest, PlaysAndStoresTheDay) {
  const GameCase& game = GetParam();
  start();
  setOption(&ContentView::smartMode, game.smartMode);
  for (const auto& guess : game.guesses)
    play(guess);
  for (std::size_t r = 0; r < game.colours.size(); ++r)
    EXPECT_EQ(colors(static_cast<int>(r)), game.colours[r]) << r;
  EXPECT_EQ(view().activeRow, game.activeRow);
  EXPECT_EQ(view().showKeypad, game.showKeypad);
  EXPECT_EQ(scoreLine(view()), game.scoreLine);
  const auto records = storedRecords();
  ASSERT_EQ(records.size(), 1u) << "one record per day after each refresh";
  EXPECT_EQ(records[0].substr(0, 6), std::string("0649C") + game.storedScore);
  // A relaunch rebuilds the same board from the record alone.
  const std::string before = colors(0) + colors(1) + colors(2);
  restart();
  EXPECT_EQ(colors(0) + colors(1) + colors(2), game.afterRelaunch.empty() ? before : game.afterRelaunch);
  EXPECT_EQ(view().activeRow, game.activeRow);
}

INSTANTIATE_TEST_SUITE_P(
    Games, SessionGameTest,
    ::testing::Values(
        GameCase{
            "won", false, {"CRANE", "TOWEL", "WIELD"}, {"XXXXY", "XXYYY", "GGGGG"}, 2, false, '3', "Birdie"},
        GameCase{"lost",
                 false,
                 {"CRANE", "SLATE", "PLANT", "GHOST", "BLIMP", "CHUMP"},
                 {"XXXXY", "XYXXY", "XYXXX"},
                 6,
                 false,
                 '7',
                 "Picking up"},
        GameCase{"invalid word stays open in cyan",
                 false,
                 {"CRANE", "QQQQQ"},
                 {"XXXXY", "CCCCC"},
                 1,
                 true,
                 '0',
                 ""},
        GameCase{"repeat is purple and not stored",
                 false,
                 {"CRANE", "CRANE"},
                 {"XXXXY", "PPPPP"},
                 1,
                 true,
                 '0',
                 "",
                 "XXXXYWWWWWWWWWW"},
        GameCase{"smart mode refuses a dropped yellow",
                 true,
                 {"CRANE", "GHOST"},
                 {"XXXXY", "RRRRW"},
                 1,
                 true,
                 '0',
                 ""},
        GameCase{
            "smart mode off accepts it", false, {"CRANE", "GHOST"}, {"XXXXY", "XXXXX"}, 2, true, '0', ""},
        GameCase{"a win that breaks the code still wins",
                 true,
                 {"CRANE", "WIELD"},
                 {"XXXXY", "GGGGG"},
                 1,
                 false,
                 '2',
                 "Eagle"}),
    [](const auto& info) {
      std::string name = info.param.name;
      for (char& c : name)
        c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
      return name;
    });

TEST_F(SessionGameTest, RowMarksFollowTheRefusals) {
  start();
  setOption(&ContentView::smartMode, true);
  play("CRANE");
  play("QQQQQ");  // invalid: warning mark
  EXPECT_TRUE(view().validGuessError[0]);
  session_->clearRow();
  play("GHOST");  // refused by Smart Mode: the error mark replaces nothing stored as accepted
  EXPECT_TRUE(view().smartModeError[0]);
  EXPECT_EQ(rowMark(view(), 1).symbol, "exclamationmark.2");
  session_->clearRow();
  play("TOWEL");
  EXPECT_EQ(view().activeRow, 2);
  EXPECT_EQ(storedRecords()[0].substr(56), "200000");
}

TEST_F(SessionGameTest, EmptySubmitChangesNothing) {
  start();
  session_->submitGuess();
  EXPECT_TRUE(storedRecords().empty());
  EXPECT_EQ(colors(0), "WWWWW");
}

TEST_F(SessionGameTest, CursorWrapsAndClearingACellTurnsSubmitOff) {
  start();
  type("CRANE");
  EXPECT_EQ(view().currentPosition, 0);
  EXPECT_FALSE(view().disableSubmit);
  session_->touchCell(2);
  session_->clearCell();
  EXPECT_TRUE(view().disableSubmit);
  EXPECT_EQ(row(0), "CR.NE");
  type("A");
  EXPECT_FALSE(view().disableSubmit);
}

TEST_F(SessionGameTest, GreenButtonCopiesKnownLetters) {
  start();
  play("FIELD");  // I E L D green against WIELD
  ASSERT_FALSE(view().disableGreenButton);
  session_->moveCorrectLetters();
  EXPECT_EQ(row(1), ".IELD");
  EXPECT_EQ(view().currentPosition, 5);  // the first empty cell
  type("W");
  session_->submitGuess();
  EXPECT_FALSE(view().showKeypad);
}

TEST_F(SessionGameTest, EquationRowsHoldTheEqualsSign) {
  start();
  setOption(&ContentView::prepopulate, false);
  setGameType("M");
  EXPECT_EQ(row(0), "...=..");
  EXPECT_TRUE(session_->keyLive("-"));
  EXPECT_FALSE(session_->keyLive("X")) << "no operator in the first column";
  type("9X8");
  EXPECT_EQ(view().currentPosition, 4) << "the cursor jumps over the equals tile";
  type("72");
  EXPECT_FALSE(view().disableSubmit) << "five entries fill a six-tile row";
  session_->submitGuess();
  EXPECT_EQ(colors(0), "XGXWYG");
  EXPECT_EQ(row(1), "...=..");
}

TEST_F(SessionGameTest, PrepopulateCopiesTheLastFinishedFirstRow) {
  seedRecords({dayRecord(kToday - 1, "C", 2, "CRANEWIELD")});
  start();
  setOption(&ContentView::prepopulate, true);
  EXPECT_EQ(row(0), "CRANE");
  EXPECT_EQ(colors(0), "WWWWW") << "filled, not submitted";
  EXPECT_EQ(view().numCellEntries, 5);
  EXPECT_FALSE(view().disableSubmit);
  setOption(&ContentView::prepopulate, false);
  EXPECT_EQ(row(0), ".....");
}

TEST_F(SessionGameTest, EquationPrepopulateNeedsTheEqualsSignInTheSamePlace) {
  seedSettings(0, "MNYYYYNNY");
  seedRecords({dayRecord(kToday - 3, "M", 2, "9X4=366X7=42"), dayRecord(kToday - 2, "M", 0, "2X8=16"),
               dayRecord(kToday - 1, "M", 1, "10/5=2")});
  start();
  EXPECT_EQ(row(0), "9X4=36") << "the latest finished game with = in column 3";
  EXPECT_EQ(view().numCellEntries, 5);
  EXPECT_FALSE(view().disableSubmit);
}

TEST_F(SessionGameTest, SpanishTilesCountAsOneCharacterInTheRecord) {
  seedSettings(0, "XNNNYNNNY");
  start();
  play("PEÑAS");
  play("SALTO");
  restart();
  EXPECT_EQ(row(0) + row(1), "PEÑASSALTO");
  EXPECT_EQ(colors(0), "XXGXG");
  EXPECT_EQ(storedRecords()[0].substr(56 + 1), "000000") << "62 characters, 63 bytes";
  play("NIÑOS");
  EXPECT_EQ(definitionLine(view(), lists_), "children");
  EXPECT_EQ(scoreLine(view()), "Pajarito");
}

TEST_F(SessionGameTest, HintsNarrowDownToASingleCandidate) {
  start();
  setOption(&ContentView::wantHints, true);
  play("CRANE");
  EXPECT_EQ(view().numberOfHints, 4);  // FIELD TOWEL WIELD YIELD
  EXPECT_EQ(hintsCountLine(view()), "4 available HINTS.");
  ASSERT_TRUE(session_->hintsButtonLive());
  session_->pressHints();
  EXPECT_TRUE(view().showHintsAlert);
  session_->confirmHint();
  EXPECT_EQ(view().numberOfAvailableHints, 3);
  EXPECT_TRUE(view().usedHints[0]);
  EXPECT_TRUE(view().disableHints) << "one row takes one hint";
  session_->clearRow();
  play("TOWEL");
  EXPECT_EQ(view().numberOfHints, 1);
  session_->pressHints();
  session_->confirmHint();
  EXPECT_FALSE(view().showKeypad) << "the single candidate is the answer";
  EXPECT_EQ(row(2), "WIELD");
  EXPECT_TRUE(view().singleHint[1]);
  EXPECT_EQ(rowMark(view(), 2).symbol, "exclamationmark.questionmark");
  EXPECT_EQ(storedRecords()[0].substr(0, 6), "0649C3");
}

}  // namespace
}  // namespace tessarine::testing
