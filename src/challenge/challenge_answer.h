// Which answer a new match plays: a random line, stepped past the answers this device used lately.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class Lists;
class RandomSource;

// Every match reads only the first lines of a list, whatever the type's day modulus.
inline constexpr int kChallengeModulus = 3654;

// Reduces `challengeIndex` in place (the key carries the reduced value) and reads its answer line.
std::string loadChallengeAnswer(const Lists& lists, std::string_view gameType, int& challengeIndex);

// Slot per answer index: the position, among this type's records, of the latest record that used
// it, or -1. `count` is the number of those records.
struct UsedAnswers {
  std::vector<int> table;  // not "slots": a Qt front end includes this
  int count = 0;
  UsedAnswers();
  void mark(int index);
};

// Steps `index` past an answer used within the last 3000 records of the type.
int stepPastUsedAnswers(const UsedAnswers& used, int index);

struct ChosenAnswer {
  int challengeIndex = 0;
  std::string challengeAnswerWord;  // of the drawn index, before any step
};

ChosenAnswer chooseChallengeAnswer(const Lists& lists, std::string_view gameType, RandomSource& random,
                                   const UsedAnswers& used);

// The initiator's first accepted guess may never be the answer: it would end the match unseen.
// Returns the (re)loaded answer; `challengeIndex` moves by one when the guess was the answer.
std::string adjustAnswerForFirstGuess(const Lists& lists, std::string_view gameType, int& challengeIndex,
                                      std::string_view guess, std::string_view answer);

}  // namespace tessarine
