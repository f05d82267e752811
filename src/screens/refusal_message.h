// The line under the board that says why the last guess was refused.
#pragma once

#include <string>
#include <string_view>

#include "session/content_view.h"

namespace tessarine {

// The how-to-play explanation of the refusal, with its example entry or symbol replaced by the
// player's own; empty when the row was not refused.
std::string refusalMessage(const ContentView& view);

// `sentence` with every occurrence of its example (the third word) as a word of its own replaced
// by `value`.
std::string fillExample(std::string_view sentence, std::string_view value);

}  // namespace tessarine
