#pragma once

namespace tessarine {

// The Christmas alert; English in both languages.
inline constexpr const char* kChristmasAlertTitle = "Merry Christmas to you from Tessarine!";
inline constexpr const char* kChristmasAlertButton = "Thanks for playing";
inline constexpr const char* kChristmasMessage =
    "We hope you'll enjoy playing a little Tessarine as you sit by the fire, sipping a little eggnog, "
    "and basking in the warm, holiday glow. May you experience the blessings of hope, peace, joy and "
    "love that the holiday season has to offer.\n\nWishing you and yours a very Merry Christmas and a "
    "Happy and Prosperous New Year.";
inline constexpr const char* kChristmasOriginalPlayers =
    "\n\nAn extra Christmas wish to the original Tessarine players, Marnie and Ansel.";
}  // namespace tessarine
