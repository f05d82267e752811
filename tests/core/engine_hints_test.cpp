#include <gtest/gtest.h>

#include "engine/hint_candidates.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine/random_source.h"
#include "engine_fixture.h"

namespace tessarine::testing {
namespace {

const std::vector<std::string> kFiveLetters = {
    "ABBEY", "ALARM", "BRACE", "CARGO", "CRANE a large wading bird",
    "CRATE", "EERIE", "GEESE", "GRACE", "LATER",
    "LLAMA", "SALSA", "SOLOS", "SPOON", "TRACE",
    "TRADE"};

// Plays the rows and runs what the replay runs after the last one.
void replay(EngineBoard& board, const std::vector<std::string>& rows) {
  board.play(rows);
  board.updateKnowledge();
  board.computeHints();
}

struct HintCase {
  const char* type;
  const char* answer;
  std::vector<std::string> list;
  std::vector<std::string> rows;
  std::vector<std::string> hints;
  HintTestForm form;
};

class Hints : public ::testing::TestWithParam<HintCase> {};

TEST_P(Hints, KeepsTheListEntriesThatFitEveryColour) {
  const HintCase& c = GetParam();
  EngineBoard board(c.type, c.answer, c.list);
  replay(board, c.rows);
  EXPECT_EQ(board.view.allHints, c.hints);
  EXPECT_EQ(board.view.numberOfHints, static_cast<int>(c.hints.size()));
  EXPECT_EQ(board.view.numberOfAvailableHints, static_cast<int>(c.hints.size()));
  EXPECT_EQ(CandidateTest(board.view, SymbolTable()).form(), c.form);
}

INSTANTIATE_TEST_SUITE_P(
    Filtering, Hints,
    ::testing::Values(
        // Only gray knowledge: anything free of gray letters, the guess's own letters included.
        HintCase{"C",
                 "CRANE",
                 kFiveLetters,
                 {"FOLKS"},
                 {"ABBEY", "BRACE", "CRANE", "CRATE", "EERIE", "GRACE", "TRACE", "TRADE"},
                 HintTestForm::grayOnly},
        HintCase{"C", "CRANE", kFiveLetters, {"TRADE"}, {"BRACE", "CRANE", "GRACE"}, HintTestForm::full},
        HintCase{"C", "CRANE", kFiveLetters, {"CARGO"}, {"CRANE", "CRATE"}, HintTestForm::singleGreen},
        HintCase{"C",
                 "CRANE",
                 kFiveLetters,
                 {"ABBEY"},
                 {"CRANE", "CRATE", "GRACE", "TRACE", "TRADE"},
                 HintTestForm::noGreen},
        // Same list name, other contents: nothing is served from the earlier list.
        HintCase{"C", "CRANE", {"CRATE", "CRANE", "TRADE"}, {"TRADE"}, {"CRANE"}, HintTestForm::full},
        HintCase{"W",
                 "NIÑA",
                 {"AÑOS", "CASA", "NIÑA", "NIÑO", "PIÑA", "SEÑA"},
                 {"AÑOS"},
                 {"NIÑA", "PIÑA"},
                 HintTestForm::noGreen},
        HintCase{"G",
                 "113",
                 {"101", "103", "113", "131", " 311 ", "1009"},
                 {"131"},
                 {"113"},
                 HintTestForm::singleGreen}));

TEST(HintNarrowing, LaterRowsTestOnlyTheSurvivors) {
  EngineBoard board("C", "CRANE", kFiveLetters);
  replay(board, {"TRADE"});
  ASSERT_EQ(board.view.numberOfHints, 3);
  // A survivor that the list no longer holds stays a candidate: narrowing never rereads the list.
  board.view.firstHints.push_back("CRAGE");
  board.view.activeRow = 1;
  replay(board, {"TRADE", "GRACE"});
  EXPECT_EQ(board.view.allHints, std::vector<std::string>{"CRANE"});
  EXPECT_EQ(board.view.numberOfHints, 1);
  EXPECT_EQ(board.view.hintsGuess, 1);

  // Another day starts again from the list.
  board.view.activeDate = -1;
  board.view.firstHints = {"CRAGE"};
  replay(board, {"TRADE"});
  EXPECT_EQ(board.view.numberOfHints, 3);
  EXPECT_EQ(board.view.hintsGameDate, -1);
}

TEST(HintNarrowing, TheAnswerAlwaysSurvivesHonestColours) {
  // Every answer against every pair of guesses from the list.
  std::vector<std::string> words;
  for (const auto& line : kFiveLetters)
    words.push_back(line.substr(0, 5));
  for (const auto& answer : words) {
    for (const auto& first : words) {
      for (const auto& second : words) {
        if (first == answer || second == answer || first == second) continue;
        EngineBoard board("C", answer, kFiveLetters);
        replay(board, {first});
        replay(board, {first, second});
        const auto& hints = board.view.allHints;
        ASSERT_NE(std::find(hints.begin(), hints.end(), answer), hints.end())
            << answer << " " << first << " " << second;
      }
    }
  }
}

TEST(DrawHint, TakesOneAtRandomAndKeepsTheLast) {
  EngineBoard board("C", "CRANE", kFiveLetters);
  replay(board, {"CARGO"});
  ASSERT_EQ(board.view.allHints.size(), 2u);
  SplitMix64 random(7);
  const std::string first = drawHint(board.view, board.view.answer, random);
  EXPECT_TRUE(first == "CRANE" || first == "CRATE");
  EXPECT_EQ(board.view.allHints.size(), 1u);
  EXPECT_EQ(board.view.numberOfAvailableHints, 1);
  EXPECT_EQ(board.view.numberOfHints, 2);
  const std::string second = drawHint(board.view, board.view.answer, random);
  EXPECT_NE(second, first);
  EXPECT_EQ(board.view.allHints.size(), 1u);  // the last one stays in place
  EXPECT_EQ(board.view.numberOfAvailableHints, 0);
  board.view.allHints.clear();
  EXPECT_EQ(drawHint(board.view, board.view.answer, random), "CRANE");
}

TEST(DrawHint, ShuffleIsUniform) {
  std::map<std::string, int> counts;
  SplitMix64 random(42);
  for (int i = 0; i < 3000; ++i) {
    ContentView view;
    view.allHints = {"A", "B", "C"};
    view.numberOfAvailableHints = 3;
    EngineBoard unused("C", "CRANE");
    counts[drawHint(view, view.answer, random)]++;
  }
  for (const auto& [hint, count] : counts)
    EXPECT_NEAR(count, 1000, 120) << hint;
}

}  // namespace
}  // namespace tessarine::testing
