#pragma once

#include <string>
#include <string_view>

namespace tessarine {

// Positions in a record count characters, so a record must first be well-formed UTF-8.
bool isValidUtf8(std::string_view text);

// A day index as records hold it: at least four digits, left-padded with "0". No stored index is
// negative, so a negative value is written as 0.
std::string paddedDayIndex(int dayIndex);

// The decimal integer of the whole text (an optional sign, then digits), or `fallback`.
int parseIntOr(std::string_view text, int fallback);

}  // namespace tessarine
