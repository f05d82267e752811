// What the session runner prints: the board and named fields of the session record.
#pragma once

#include <optional>
#include <string>

#include "cli/line_runner.h"
#include "session/session.h"

namespace tessarine::cli {

// One line per board row, "LETTERS COLOURS", then "activeRow=N showKeypad=true|false".
std::string sessionBoard(const ContentView& view);

// The current value of a named field or screen text, or nullopt for an unknown name.
std::optional<std::string> sessionState(const Session& session, const std::string& name);

}  // namespace tessarine::cli
