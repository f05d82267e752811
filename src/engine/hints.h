// Hints: the entries of the game's list that agree with every colour shown so far.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/board.h"
#include "engine/keypad.h"
#include "engine/knowledge.h"

namespace tessarine {

class Lists;
class RandomSource;

// The hint engine's own state; it outlives a reload of the same day.
struct HintState {
  std::vector<std::string> allHints;
  std::vector<std::string> firstHints;
  std::string hintsGameType = "Ó";
  int hintsGameDate = -1;
  int hintsGuess = 0;
  int numberOfHints = -1;  // -1: no filtering done for this day
  int numberOfAvailableHints = 0;
};

// The green pass, last of the knowledge update: green keys, `greenLetters`, the open and closed
// columns of each known symbol and its count bounds. True when some tile is green.
bool updateGreenKnowledge(const Board& board, Keypad& keypad, Knowledge& knowledge);

// Filters the candidates of `gameType` on day `day`: narrows the survivors of the same day and
// type, else starts again from the game's validity list. Sets `allHints`, `firstHints`,
// `numberOfHints`, `numberOfAvailableHints`.
void computeHints(HintState& hints, const Knowledge& knowledge, const Board& board, const Lists& lists,
                  std::string_view gameType, int day);

// Picks the hint to enter: a uniform shuffle of `allHints` and its first entry, taken off the
// list; the one entry left stays; with none left, the answer itself.
std::string drawHint(HintState& hints, const Answer& answer, RandomSource& random);

}  // namespace tessarine
