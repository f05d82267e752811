// What the session takes from the game table when the game type changes, and from the lists when
// the shown day changes.
#pragma once

#include <string_view>

#include "session/content_view.h"

namespace tessarine {

class Lists;

// Sets the keypad, family, board size, `pickingUp` and the operator flags from `gameType`.
// A value outside the table gets the fall-back: 5 tiles, 6 rows, 26 keys that all read "X".
void applyCatalogue(ContentView& view);

// Whether an operator key is switched off for the shown game type.
bool operatorDisabled(const ContentView& view, std::string_view symbol);

// The answer of the shown game type on the shown day.
Answer shownAnswer(const ContentView& view, const Lists& lists);

}  // namespace tessarine
