// Hints: the entries of the game's list that agree with every colour shown so far.
#pragma once

#include <string>

namespace tessarine {

struct ContentView;
class Lists;
class RandomSource;

// The green pass, last of the knowledge update: green keys, `greenLetters`, the open and closed
// columns of each known symbol and its count bounds. True when some tile is green.
bool updateGreenKnowledge(ContentView& view);

// Filters the candidates: narrows the survivors of the same day and type, else starts again from
// the game's validity list. Sets `allHints`, `firstHints`, `numberOfHints`, `numberOfAvailableHints`.
void computeHints(ContentView& view, const Lists& lists);

// Picks the hint to enter: a uniform shuffle of `allHints` and its first entry, taken off the
// list; the one entry left stays; with none left, the answer itself.
std::string drawHint(ContentView& view, const Lists& lists, RandomSource& random);

}  // namespace tessarine
