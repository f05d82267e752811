#include <gtest/gtest.h>

#include "engine_fixture.h"

namespace tessarine::testing {
namespace {

struct ScoreCase {
  const char* type;
  const char* answer;
  const char* guess;
  const char* colors;
};

class ScoreRow : public ::testing::TestWithParam<ScoreCase> {};

TEST_P(ScoreRow, ColoursEachTileFromTheCounts) {
  const ScoreCase& c = GetParam();
  EngineBoard board(c.type, c.answer);
  board.play({c.guess});
  EXPECT_EQ(board.rowColors(0), c.colors) << c.answer << " / " << c.guess;
  // Colours come from the letters alone: scoring again changes nothing.
  board.play({c.guess});
  EXPECT_EQ(board.rowColors(0), c.colors);
}

INSTANTIATE_TEST_SUITE_P(WorkedExamples, ScoreRow,
                         ::testing::Values(ScoreCase{"C", "CRANE", "CARGO", "green yellow yellow gray gray"},
                                           ScoreCase{"C", "SPOON", "SOLOS", "green yellow gray green orange"},
                                           ScoreCase{"C", "LLAMA", "LATER", "blue yellow gray gray gray"},
                                           ScoreCase{"J", "1131", "1411", "green gray yellow green"},
                                           ScoreCase{"M", "6X7=42", "9X8=72",
                                                     "gray green gray white yellow green"}));

INSTANTIATE_TEST_SUITE_P(RepeatedSymbols, ScoreRow,
                         ::testing::Values(
                             // Three copies against one in its spot: one green, two orange.
                             ScoreCase{"C", "CRANE", "EERIE", "orange orange yellow gray green"},
                             // Two right spots against three copies: both blue.
                             ScoreCase{"H", "111", "112", "blue blue gray"},
                             // Right spot and wrong spot against exactly two: green and yellow, never orange.
                             ScoreCase{"C", "SALSA", "SOLOS", "green gray green gray yellow"},
                             ScoreCase{"C", "GEESE", "EERIE", "yellow green gray gray green"},
                             // No count folding of case or accents.
                             ScoreCase{"W", "AÑOS", "ANOS", "green gray green green"},
                             ScoreCase{"W", "NIÑO", "AÑOS", "gray yellow yellow gray"}));

INSTANTIATE_TEST_SUITE_P(
    EqualsTile, ScoreRow,
    ::testing::Values(
        // The "=" at the answer's column stays white, operators score like digits.
        ScoreCase{"S", "1+2X3=7", "3+2X1=7", "yellow green green green yellow white green"},
        ScoreCase{"S", "1+2X3=7", "2X1+5=7", "yellow yellow yellow yellow gray white green"},
        // A win: all green but the "=".
        ScoreCase{"M", "6X7=42", "6X7=42", "green green green white green green"},
        ScoreCase{"C", "CRANE", "CRANE", "green green green green green"}));

TEST(FillRow, RefusedEquationRowKeepsTheEqualsWhite) {
  EngineBoard board("P", "12+34=46");
  board.enter(2, "99+99=46");
  fillRow(board.view, TileColor::cyan);
  EXPECT_EQ(board.rowColors(2), "cyan cyan cyan cyan cyan white cyan cyan");
  fillRow(board.view, TileColor::pink, EqualsTile::paint);
  EXPECT_EQ(board.rowColors(2), "pink pink pink pink pink pink pink pink") << "a match paints it too";
  EXPECT_EQ(board.view.answer.equalsColumn, 5);
  EngineBoard words("C", "CRANE");
  EXPECT_EQ(words.view.answer.equalsColumn, 0);
}

}  // namespace
}  // namespace tessarine::testing
