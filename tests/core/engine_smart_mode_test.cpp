#include <gtest/gtest.h>

#include "engine/smart_mode.h"
#include "engine_fixture.h"

namespace tessarine::testing {
namespace {

struct SmartCase {
  const char* rule;
  const char* answer;
  std::vector<std::string> rows;
  const char* entered;
  const char* failing;  // empty: all four checks pass
  const char* marks;
};

class SmartMode : public ::testing::TestWithParam<SmartCase> {};

TEST_P(SmartMode, FirstFailingCheckMarksTheRightCells) {
  const SmartCase& c = GetParam();
  EngineBoard board("C", c.answer);
  board.play(c.rows);
  const int active = static_cast<int>(c.rows.size());
  board.enter(active, c.entered);
  // Red marks of an earlier attempt are wiped by the first check.
  board.view.cellBackground[static_cast<std::size_t>(active * 5)] = TileColor::red;
  const std::pair<const char*, bool (*)(Board&)> checks[] = {{"checkGreenTiles", checkGreenTiles},
                                                             {"checkBlueTiles", checkBlueTiles},
                                                             {"checkGrayTiles", checkGrayTiles},
                                                             {"checkYellowTiles", checkYellowTiles}};
  std::string failing;
  for (const auto& [name, check] : checks) {
    if (!check(board.view)) {
      failing = name;
      break;
    }
  }
  EXPECT_EQ(failing, c.failing) << c.rule;
  EXPECT_EQ(board.rowColors(active), c.marks) << c.rule;
}

const std::string kPass = "white white white white white";

INSTANTIATE_TEST_SUITE_P(
    Rules, SmartMode,
    ::testing::Values(
        SmartCase{
            "green not kept", "CRANE", {"CARGO"}, "TRACE", "checkGreenTiles", "red white white white white"},
        SmartCase{"green and yellow: exact count, one dropped",
                  "SALSA",
                  {"SOLOS"},
                  "SPOON",
                  "checkGreenTiles",
                  "white red red red white"},
        SmartCase{"green and orange: both copies kept",
                  "SPOON",
                  {"SOLOS"},
                  "STOPS",
                  "checkGreenTiles",
                  "white white white white red"},
        SmartCase{"green and orange: only the green kept", "SPOON", {"SOLOS"}, "SPOOK", "", kPass.c_str()},
        SmartCase{"blue with no extra copy",
                  "LLAMA",
                  {"LATER"},
                  "LEMON",
                  "checkBlueTiles",
                  "red white white white white"},
        SmartCase{"blue with one more copy", "LLAMA", {"LATER"}, "LLANO", "", kPass.c_str()},
        SmartCase{"gray marks every copy of every gray symbol",
                  "CRANE",
                  {"SOLOS"},
                  "LOSSY",
                  "checkGrayTiles",
                  "red red red red white"},
        SmartCase{"yellow in the same spot",
                  "CRANE",
                  {"CARGO"},
                  "CARTS",
                  "checkYellowTiles",
                  "white red white white white"},
        SmartCase{"yellow dropped three rows later",
                  "CRANE",
                  {"ABBEY", "FOLKS", "WHIPS"},
                  "TRUCE",
                  "checkYellowTiles",
                  "white red red red red"},
        SmartCase{"two yellows up high, one copy now: counts look at the row above only",
                  "LLAMA",
                  {"SALAD", "FORTH", "PUNCH"},
                  "ALMVE",
                  "",
                  kPass.c_str()},
        SmartCase{"two yellows in the row above, one copy now",
                  "LLAMA",
                  {"SALAD"},
                  "ALMVE",
                  "checkYellowTiles",
                  "red white white white white"},
        SmartCase{"orange not reduced",
                  "ABOUT",
                  {"TOTEM"},
                  "OTATT",
                  "checkYellowTiles",
                  "white red white red red"}));

TEST(PerfectGame, EveryPlayedRowKeptTheCodeWithoutHelp) {
  const struct {
    int activeRow;
    int badRow;  // mark index spoiled, -1 for none
    RowMarks ContentView::*mark;
    bool perfect;
  } cases[] = {
      {0, -1, nullptr, true},                        // won on the first row: nothing to examine
      {3, -1, nullptr, true},                        // rows 1..3 starred
      {3, 2, &ContentView::usedHints, false},        // a hint spoils it
      {3, 1, &ContentView::validGuessError, false},  //
      {6, 5, &ContentView::smartModeError, true},    // lost: the last row is not examined
      {6, 4, &ContentView::singleHint, false},       //
  };
  for (const auto& c : cases) {
    ContentView view;
    view.gameRows = 6;
    view.activeRow = c.activeRow;
    view.smartModeCorrect.fill(true);
    if (c.badRow >= 0) (view.*c.mark)[static_cast<std::size_t>(c.badRow)] = true;
    EXPECT_EQ(isPerfectGame(view, view.activeRow, view.gameRows), c.perfect)
        << c.activeRow << " " << c.badRow;
  }
  ContentView unstarred;
  unstarred.activeRow = 2;
  unstarred.smartModeCorrect[0] = true;
  EXPECT_FALSE(isPerfectGame(unstarred, unstarred.activeRow, unstarred.gameRows));
}

}  // namespace
}  // namespace tessarine::testing
