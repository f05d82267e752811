#pragma once

#include <optional>
#include <string>

#include "challenge/match.h"

namespace tessarine::cli {

// The board as the session runner prints it, rows then "activeRow=N showKeypad=B"; the key cells
// first while the accepting player is at the key.
std::string matchBoard(const Match& match);

// A field of the match or of its saved-match scan by its name, or nothing for an unknown name.
std::optional<std::string> matchState(const Match& match, const std::string& name);

}  // namespace tessarine::cli
