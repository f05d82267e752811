#include "challenge/challenge_answer.h"

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "challenge/challenge_key.h"
#include "engine/random_source.h"

namespace tessarine {

std::string loadChallengeAnswer(const Lists& lists, std::string_view gameType, int& challengeIndex) {
  if (challengeIndex >= kChallengeModulus) challengeIndex %= kChallengeModulus;
  if (challengeIndex < 0) challengeIndex = 0;
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr || info->answerFile.empty()) return "Tessarine";
  const auto& lines = lists.file(std::string(info->answerFile)).lines;
  // Every shipped list holds at least 3654 lines; a shorter one wraps instead of reading past its end,
  // the same way on both devices.
  std::size_t line = static_cast<std::size_t>(challengeIndex);
  std::size_t usable = lines.size();
  while (usable > 0 && trimView(lines[usable - 1]).empty())
    --usable;
  if (usable == 0) return "";
  if (line >= usable) line %= usable;
  return std::string(trimView(lines[line]));
}

UsedAnswers::UsedAnswers() : table(kChallengeRadix, -1) {}

void UsedAnswers::mark(int index) {
  if (index < 0 || index >= kChallengeRadix) return;
  count += 1;
  table[static_cast<std::size_t>(index)] = count;
}

int stepPastUsedAnswers(const UsedAnswers& used, int index) {
  const auto slot = [&](int i) { return used.table[static_cast<std::size_t>(i)]; };
  const int first = slot(index);
  if (first < 1 || used.count - first > 2999) return index;
  // The stop below is one record later than the keep above; both thresholds have always been so.
  for (int step = 0; step < kChallengeRadix; ++step) {
    index += 1;
    if (index >= kChallengeRadix) index -= kChallengeRadix;
    const int s = slot(index);
    if (s < 0 || used.count - s > 3000) break;
  }
  return index;
}

ChosenAnswer chooseChallengeAnswer(const Lists& lists, std::string_view gameType, RandomSource& random,
                                   const UsedAnswers& used) {
  ChosenAnswer chosen;
  chosen.challengeIndex = static_cast<int>(boundedRandom(random, kChallengeRadix));
  chosen.challengeAnswerWord = loadChallengeAnswer(lists, gameType, chosen.challengeIndex);
  chosen.challengeIndex = stepPastUsedAnswers(used, chosen.challengeIndex);
  return chosen;
}

std::string adjustAnswerForFirstGuess(const Lists& lists, std::string_view gameType, int& challengeIndex,
                                      std::string_view guess, std::string_view answer) {
  // In equations the loop meant to wait for the "=" to line up always leaves after one step.
  if (guess == answer) challengeIndex += 1;
  return loadChallengeAnswer(lists, gameType, challengeIndex);
}

}  // namespace tessarine
