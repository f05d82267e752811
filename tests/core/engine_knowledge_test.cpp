#include <gtest/gtest.h>

#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine_fixture.h"

namespace tessarine::testing {
namespace {

TileColor keyColor(const ContentView& view, const std::string& symbol) {
  for (int k = 0; k < view.keypadNumber; ++k) {
    if (view.keypadLetters[static_cast<std::size_t>(k)] == symbol)
      return view.keypadKeyColor[static_cast<std::size_t>(k)];
  }
  return TileColor::black;
}

struct KeyCase {
  const char* type;
  const char* answer;
  std::vector<std::string> rows;
  const char* key;
  TileColor color;
};

class KeyColour : public ::testing::TestWithParam<KeyCase> {};

TEST_P(KeyColour, StrongestTileColourWins) {
  const KeyCase& c = GetParam();
  EngineBoard board(c.type, c.answer);
  board.play(c.rows);
  board.updateKnowledge();
  EXPECT_EQ(tileColorName(keyColor(board.view, c.key)), tileColorName(c.color))
      << c.answer << " key " << c.key;
}

INSTANTIATE_TEST_SUITE_P(
    Priority, KeyColour,
    ::testing::Values(KeyCase{"C", "SPOON", {"SOLOS"}, "S", TileColor::green},  // green over orange
                      KeyCase{"C", "SPOON", {"SOLOS"}, "O", TileColor::green},  // green over yellow
                      KeyCase{"C", "SPOON", {"SOLOS"}, "L", TileColor::gray},
                      KeyCase{"C", "LLAMA", {"LATER", "ALARM"}, "L", TileColor::blue},
                      KeyCase{
                          "C", "ABOUT", {"TOTEM", "STAIR"}, "T", TileColor::yellow},  // yellow over orange
                      KeyCase{"C", "ABOUT", {"TOTEM"}, "T", TileColor::orange},
                      KeyCase{"C", "ABOUT", {"TOTEM"}, "Z", TileColor::white},  // no tiles: unchanged
                      KeyCase{"M", "6X7=42", {"9+8=17"}, "+", TileColor::gray},
                      KeyCase{"W", "CASA", {"ÑJEO"}, "Ñ", TileColor::gray}));

TEST(GrayLetters, RankedByFrequencyOnceEach) {
  const struct {
    const char* type;
    const char* answer;
    std::vector<std::string> rows;
    std::vector<std::string> gray;
  } cases[] = {
      {"W", "CASA", {"ÑJEO", "OJOS"}, {"E", "O", "J", "Ñ"}},  // Ñ after J
      {"G", "113", {"907"}, {"0", "7", "9"}},
      {"M", "6X7=42", {"9+8=17"}, {"1", "8", "9"}},  // an operator has no rank
  };
  for (const auto& c : cases) {
    EngineBoard board(c.type, c.answer);
    board.play(c.rows);
    board.updateKnowledge();
    EXPECT_EQ(board.view.grayLetters, c.gray) << c.answer;
  }
}

TEST(GreenButton, EnabledOnlyByBlueOrGreen) {
  const struct {
    const char* answer;
    const char* guess;
    bool disabled;
  } cases[] = {{"CRANE", "FOLKS", true},
               {"CRANE", "ABBEY", true},
               {"LLAMA", "LATER", false},
               {"CRANE", "CARGO", false}};
  for (const auto& c : cases) {
    EngineBoard board("C", c.answer);
    board.play({c.guess});
    board.view.disableGreenButton = false;
    board.updateKnowledge();
    EXPECT_EQ(board.view.disableGreenButton, c.disabled) << c.guess;
  }
}

struct BoundCase {
  const char* answer;
  std::vector<std::string> rows;
  const char* symbol;
  int exact, lower, upper;
};

class CountBound : public ::testing::TestWithParam<BoundCase> {};

TEST_P(CountBound, FirstMatchingRulePerRow) {
  const BoundCase& c = GetParam();
  EngineBoard board("C", c.answer);
  board.play(c.rows);
  board.updateKnowledge();
  const auto& unique = board.view.hintLettersUnique;
  const auto at =
      static_cast<std::size_t>(std::find(unique.begin(), unique.end(), c.symbol) - unique.begin());
  ASSERT_LT(at, unique.size()) << c.symbol;
  EXPECT_EQ(board.view.hintLettersExact[at], c.exact) << c.answer << " " << c.symbol;
  EXPECT_EQ(board.view.hintLettersLower[at], c.lower) << c.answer << " " << c.symbol;
  EXPECT_EQ(board.view.hintLettersUpper[at], c.upper) << c.answer << " " << c.symbol;
}

INSTANTIATE_TEST_SUITE_P(
    Rules, CountBound,
    ::testing::Values(BoundCase{"CRANE", {"CARGO"}, "C", 1, 0, 5},  // 1: green, no orange
                      BoundCase{"SALSA", {"SOLOS"}, "S", 2, 0, 5},  // 1: green + yellow
                      BoundCase{"SPOON", {"SOLOS"}, "S", 1, 0, 5},  // 2: one orange
                      BoundCase{"CRANE", {"EERIE"}, "E", 0, 0, 2},  // 3: two oranges
                      BoundCase{"LLAMA", {"LATER"}, "L", 0, 2, 5},  // 4: blue
                      BoundCase{"CRANE", {"CARGO"}, "A", 0, 1, 5},  // 6: yellow
                      BoundCase{"ABOUT", {"TOTEM"}, "T", 1, 1, 1},  // 7: orange only
                      BoundCase{"ABOUT", {"TOTEM", "STAIR"}, "T", 1, 1, 1}));

}  // namespace
}  // namespace tessarine::testing
