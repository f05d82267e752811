// The six-digit key that ties two devices to one answer: game type and answer index in plain
// arithmetic, with one check digit. It carries no secret and no clock.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tessarine {

// The radix of the answer index in the key, and the size of the table of used answers.
inline constexpr int kChallengeRadix = 3700;

// The reserved game type of a key that names no playable type.
inline constexpr std::string_view kNoGameType = "Ó";

// The type number as the key carries it; 0 for a type outside the key's table.
int challengeTypeNumber(std::string_view gameType);

// The game type a decoded type number names; kNoGameType for 22 and anything outside 1 to 26.
std::string gameTypeOfNumber(int typeNumber);

// The six key digits in the order they are sent (the first two swapped), each 0 to 9, or 10 and
// above for a type with no type number.
std::array<int, 6> challengeKeyDigits(std::string_view gameType, int challengeIndex);

// The key as shown and sent: each digit a keycap emoji, "🔢" for a digit above 9.
std::string makeChallengeKey(std::string_view gameType, int challengeIndex);
// Whether `typed` is a key as a person types it: six plain digits.
inline bool isKeyDigits(std::string_view typed) {
  return typed.size() == 6 && typed.find_first_not_of("0123456789") == std::string_view::npos;
}
std::string keycap(int digit);

// The short label of a game type in titles and share texts.
std::string challengeGameTag(std::string_view gameType);

// What the accepting player typed: six cells, an empty one holding three blanks.
using KeyCells = std::array<std::string, 6>;

struct KeyCheck {
  std::string gameType;  // kNoGameType when refused for its type
  int challengeIndex = 0;
  int gameIndex = 0;   // the decoded type number
  int errorIndex = 0;  // check digit computed minus check digit typed
  bool valid = false;
};

KeyCheck checkChallengeKey(const KeyCells& cells);

}  // namespace tessarine
