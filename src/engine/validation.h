// Whether an entered row may be scored at all: a legal entry for the game type, and not a repeat.
#pragma once

#include <string_view>

#include "engine/board.h"

namespace tessarine {

class Lists;

// Word lists match on a line's first characters, prime lists on the whole trimmed line,
// equations are evaluated, and every other type accepts any full row.
bool isValidGuess(std::string_view gameType, const Lists& lists, std::string_view guess);

// True when `guess` equals one of the rows above `activeRow`.
bool wasUsedBefore(const Board& board, std::string_view guess);

}  // namespace tessarine
