#pragma once

#include <array>
#include <string_view>

namespace tessarine {

// The colour of a tile or a key. Compared for equality only and never stored: colours are
// always derived again from the stored letters.
enum class TileColor { white, gray, green, blue, yellow, orange, red, cyan, purple, black, pink };

namespace detail {
// Both tables follow the order of TileColor.
constexpr std::array<std::string_view, 11> kTileColorNames = {
    "white", "gray", "green", "blue", "yellow", "orange", "red", "cyan", "purple", "black", "pink"};
// One letter a colour for board dumps; gray is X, black K and pink I, so every letter stays distinct.
// Pink marks a match row awaiting the opponent's guess.
constexpr std::string_view kTileColorLetters = "WXGBYORCPKI";
}  // namespace detail

constexpr std::string_view tileColorName(TileColor color) {
  return detail::kTileColorNames[static_cast<std::size_t>(color)];
}

constexpr char tileColorLetter(TileColor color) {
  return detail::kTileColorLetters[static_cast<std::size_t>(color)];
}

// The emoji of a scoring colour in a shared grid ("🟩" for green); empty for the other colours,
// which each text draws in its own way.
constexpr std::string_view scoringEmoji(TileColor color) {
  switch (color) {
    case TileColor::gray:
      return "⬜";
    case TileColor::yellow:
      return "🟨";
    case TileColor::green:
      return "🟩";
    case TileColor::orange:
      return "🟧";
    case TileColor::blue:
      return "🟦";
    default:
      return {};
  }
}

}  // namespace tessarine
