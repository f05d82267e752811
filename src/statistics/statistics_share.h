// The texts that leave the program from the statistics screens.
#pragma once

#include <optional>
#include <string>

#include "statistics/fifth_view.h"
#include "statistics/second_view.h"

namespace tessarine {

// The summary of the statistics screen. The ten-game average is gated on finished games here,
// unlike the screen.
std::string statisticsShareText(const SecondView& view);

// "April 3, 2022,Birdie,-1" for each game of the list in force, one a line. Empty when no sort
// flag is set; nothing at all for an empty list, so the sheet has nothing to share.
std::optional<std::string> listShareText(const FifthView& view);

}  // namespace tessarine
