#pragma once

#include <array>
#include <string_view>

namespace tessarine {

// The colour of a tile or a key. Compared for equality only and never stored: colours are
// always derived again from the stored letters.
enum class TileColor { white, gray, green, blue, yellow, orange, red, cyan, purple, black };

namespace detail {
// Both tables follow the order of TileColor.
constexpr std::array<std::string_view, 10> kTileColorNames = {"white",  "gray", "green", "blue",   "yellow",
                                                              "orange", "red",  "cyan",  "purple", "black"};
// One letter a colour for board dumps; gray is X and black K, so every letter stays distinct.
constexpr std::string_view kTileColorLetters = "WXGBYORCPK";
}  // namespace detail

constexpr std::string_view tileColorName(TileColor color) {
  return detail::kTileColorNames[static_cast<std::size_t>(color)];
}

constexpr char tileColorLetter(TileColor color) {
  return detail::kTileColorLetters[static_cast<std::size_t>(color)];
}

}  // namespace tessarine
