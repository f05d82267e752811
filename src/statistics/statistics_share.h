// The texts that leave the program from the statistics screens, and the one wrapper through which
// every shared text goes out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "statistics/fifth_view.h"
#include "statistics/second_view.h"

namespace tessarine {

// What the platform's share sheet receives: the text as its only item, nothing excluded.
struct ShareSheetView {
  std::vector<std::string> activityItems;

  explicit ShareSheetView(std::string text) : activityItems{std::move(text)} {}
};

// The summary of the statistics screen. The ten-game average is gated on finished games here,
// unlike the screen.
std::string statisticsShareText(const SecondView& view);

// "April 3, 2022,Birdie,-1" for each game of the list in force, one a line. Empty when no sort
// flag is set; nothing at all for an empty list, so the sheet has nothing to share.
std::optional<std::string> listShareText(const FifthView& view);

}  // namespace tessarine
