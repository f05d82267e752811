#pragma once

#include <string>
#include <vector>

#include "session/content_view.h"

// Where the main screen puts the keys. Plain C++ over the record, so nothing here needs a screen;
// the sizes, texts and marks come from the core.

// Key indices into `keypadLetters`, one list per keypad row on screen. The letters are laid out
// as QWERTY or, without it, alphabetically in four rows; the array order never changes.
std::vector<std::vector<int>> keyRows(const tessarine::ContentView& view);
