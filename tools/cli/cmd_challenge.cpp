// The challenge key by hand: build one from a type and an answer index, or check a typed one.
#include <iostream>

#include "challenge/challenge_key.h"
#include "cli/command.h"

namespace tessarine::cli {
namespace {

int challenge(const Args& args) {
  const auto& words = args.positional();
  if (words.size() == 3 && words[0] == "key") {
    const int index = parseInt(words[2], "INDEX");
    if (challengeTypeNumber(words[1]) == 0) throw UsageError{"no key carries game type '" + words[1] + "'"};
    std::string digits;
    for (const int digit : challengeKeyDigits(words[1], index))
      digits += std::to_string(digit);
    std::cout << digits << " " << makeChallengeKey(words[1], index) << "\n";
    return 0;
  }
  if (words.size() == 2 && words[0] == "check") {
    const std::string& typed = words[1];
    if (!isKeyDigits(typed)) throw UsageError{"a key is six digits"};
    KeyCells cells;
    for (std::size_t i = 0; i < 6; ++i)
      cells[i] = std::string(1, typed[i]);
    const KeyCheck check = checkChallengeKey(cells);
    if (check.valid) {
      std::cout << "valid " << check.gameType << " " << check.challengeIndex << "\n";
    } else {
      std::cout << "invalid\n";
    }
    return 0;
  }
  throw UsageError{"usage: challenge key TYPE INDEX | challenge check DIGITS"};
}

const Registrar command({"challenge", "challenge key TYPE INDEX | challenge check DIGITS", challenge});

}  // namespace
}  // namespace tessarine::cli
