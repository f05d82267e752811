// The words a choice writes into a row instead of a guess. They use characters that can never be
// a valid guess of the game type, so submit can tell them from a guess by the row alone.
#pragma once

#include <string>
#include <vector>

#include "engine/board.h"

namespace tessarine {

enum class SignalMove { foundAnswer, walked, struckOut, missedFinalGuess, intentionalWalk };

// The symbols of the fill, one a cell; an equation keeps its "=" at `equalsColumn`.
std::vector<std::string> signalFill(const std::string& gameType, SignalMove move, int gameLetters,
                                    int equalsColumn);

// Whether the active row of `board` holds the fill of `move`.
bool rowHoldsFill(const Board& board, const std::string& gameType, SignalMove move);

}  // namespace tessarine
