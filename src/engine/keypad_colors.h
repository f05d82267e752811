// Key colours and the first half of the hint knowledge, rebuilt from the scored rows 0..`activeRow`.
// One pass per tile colour, weakest first, each overwriting the last.
#pragma once

#include <array>
#include <string_view>

namespace tessarine {

struct Board;
struct Keypad;
struct Knowledge;

// Symbols by how often they occur, letters then digits; the order of `grayLetters`.
inline constexpr std::array<std::string_view, 37> kSymbolFrequency = {
    "E", "S", "I", "A", "R", "N", "T", "O", "L", "D", "C", "U", "G", "M", "P", "H", "B", "Y", "K",
    "F", "W", "V", "Z", "X", "Q", "J", "Ñ", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};

void markGrayKeys(const Board& board, Keypad& keypad, Knowledge& knowledge);
void markOrangeKeys(const Board& board, Keypad& keypad, Knowledge& knowledge);
void markYellowKeys(const Board& board, Keypad& keypad, Knowledge& knowledge);
// True when some tile is blue.
bool markBlueKeys(const Board& board, Keypad& keypad, Knowledge& knowledge);

// The five passes in their fixed order. True when some tile is blue or green: only then has the
// green button something to copy.
bool updateKnowledge(const Board& board, Keypad& keypad, Knowledge& knowledge);

}  // namespace tessarine
