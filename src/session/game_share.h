// The emoji grid of one finished game, as the main screen shares it. It never holds the answer
// or a guess: only tile colours, row marks and the score name.
#pragma once

#include <string>

#include "catalogue/clock.h"
#include "session/content_view.h"

namespace tessarine {

// The text of the shown game from its board, row marks and date. A tile whose border is 4.0 (the
// player hid it) shares as a black square, as do the whole-row colours of refused rows.
std::string gameShareText(const ContentView& view, const Clock& clock);

}  // namespace tessarine
