#pragma once

#include <string>
#include <vector>

#include "session/content_view.h"

// Where the main screen puts the keys. Plain C++ over the record, so nothing here needs a screen;
// the sizes, texts and marks come from the core.

// Key indices into `keypadLetters`, one list per keypad row on screen. The letters are laid out
// as QWERTY or, without it, alphabetically in four rows; the array order never changes.
std::vector<std::vector<int>> keyRows(const tessarine::ContentView& view);
// The same for any keypad, a match's too.
std::vector<std::vector<int>> keyRows(const tessarine::Keypad& keypad, const std::string& typeOfGame,
                                      bool useQWERTY);

// The phone layout's width for a window of `width` x `height`: the window's width, unless the
// screen (fixed bars, the board's rows, the message line and the keypad) would then be taller
// than the window, in which case the width at which it just fits.
double fittedLayoutWidth(const std::string& gameType, bool useQWERTY, int boardRows, int keypadRows,
                         double width, double height);
