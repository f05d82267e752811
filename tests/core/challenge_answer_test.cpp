#include <gtest/gtest.h>

#include "catalogue/lists.h"
#include "challenge/challenge_answer.h"
#include "core/engine_fixture.h"
#include "engine/random_source.h"

namespace tessarine {
namespace {

// `records` lists the indices of this type's records in store order.
UsedAnswers usedOf(const std::vector<int>& records) {
  UsedAnswers used;
  for (const int index : records)
    used.mark(index);
  return used;
}

std::vector<int> many(int count, int from) {
  std::vector<int> indices;
  for (int i = 0; i < count; ++i)
    indices.push_back((from + i) % 3700);
  return indices;
}

TEST(ChallengeAnswer, StepsPastRecentlyUsedAnswers) {
  const auto oldThenFiller = [](int fillers) {
    std::vector<int> records = {10};
    const auto filler = many(fillers, 100);
    records.insert(records.end(), filler.begin(), filler.end());
    return records;
  };
  const struct {
    const char* what;
    std::vector<int> records;
    int drawn;
    int expected;
  } cases[] = {
      {"no records", {}, 42, 42},
      {"never used", {1, 2, 3}, 42, 42},
      {"used: the next free one", {42, 43, 44}, 42, 45},
      {"the step wraps past 3699", {3699, 0}, 3699, 1},
      {"used 3000 records ago is kept", oldThenFiller(3000), 10, 10},
      {"used 2999 records ago steps on", oldThenFiller(2999), 10, 11},
      // Stepping stops only beyond 3000 records: one record later than the keep.
      {"a stepped-on slot of 3000 ago is not taken",
       [] {
         std::vector<int> r = {11, 10};
         const auto f = many(2998, 100);
         r.insert(r.end(), f.begin(), f.end());
         r.push_back(10);
         return r;
       }(),
       10, 12},
  };
  for (const auto& c : cases)
    EXPECT_EQ(stepPastUsedAnswers(usedOf(c.records), c.drawn), c.expected) << c.what;
}

TEST(ChallengeAnswer, LoadReducesTheIndexInPlace) {
  testing::MemorySource source;
  std::string lines;
  for (int i = 0; i < 3654; ++i)
    lines += "W" + std::to_string(i) + " \n";
  source.files["5LetterAnswers"] = lines;
  const Lists lists(source);
  const struct { int index, reduced; } cases[] = {{0, 0}, {3653, 3653}, {3654, 0}, {3699, 45}, {-3, 0}};
  for (const auto& c : cases) {
    int index = c.index;
    EXPECT_EQ(loadChallengeAnswer(lists, "C", index), "W" + std::to_string(c.reduced));
    EXPECT_EQ(index, c.reduced);
  }
  // The opening guess may not be the answer: it moves to the next line, and only then.
  int index = 7;
  EXPECT_EQ(adjustAnswerForFirstGuess(lists, "C", index, "W7", "W7"), "W8");
  EXPECT_EQ(adjustAnswerForFirstGuess(lists, "C", index, "W1", "W8"), "W8");
  EXPECT_EQ(index, 8);
  SplitMix64 random(9);
  const ChosenAnswer chosen = chooseChallengeAnswer(lists, "C", random, usedOf({}));
  EXPECT_LT(chosen.challengeIndex, 3654);
  EXPECT_EQ(chosen.challengeAnswerWord, "W" + std::to_string(chosen.challengeIndex));
}

}  // namespace
}  // namespace tessarine
