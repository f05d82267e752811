#include "screens/board_sizes.h"

#include <array>

#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

// Widths of one class of game types: key and cell with QWERTY and with the alpha keys, and what
// a small screen changes (0 where it changes nothing).
struct SizeRow {
  double keyQwerty, keyAlpha, cellQwerty, cellAlpha;
  double smallKey, smallCellQwerty, smallCellAlpha;
};

enum SizeClass { sevenRowWords, otherWords, sevenLetterWords, eightLetterWords, threeDigitNumbers, wideKeys };

// Seven rows of words leave little height, so a small screen shrinks their tiles; the three-digit
// numbers have few keys, which a small screen can take narrower.
constexpr std::array<SizeRow, 6> kSizes = {{
    {0.08, 0.1, 0.108, 0.09, 0, 0.094, 0.08},
    {0.08, 0.1, 0.108, 0.108, 0, 0, 0},
    {0.08, 0.1, 0.094, 0.094, 0, 0, 0},
    {0.08, 0.1, 0.081, 0.081, 0, 0, 0},
    {0.094, 0.094, 0.094, 0.094, 0.081, 0, 0},
    {0.111, 0.111, 0.081, 0.081, 0, 0, 0},
}};

SizeClass sizeClass(const GameTypeInfo* info) {
  if (info == nullptr) return otherWords;
  if (!info->isWordGame()) return info->tiles == 3 && info->typeOfGame == "N" ? threeDigitNumbers : wideKeys;
  if (info->rows == 7) return sevenRowWords;
  if (info->tiles == 7) return sevenLetterWords;
  if (info->tiles == 8) return eightLetterWords;
  return otherWords;
}

double orSmall(double normal, double small, bool smallScreen) {
  return smallScreen && small != 0 ? small : normal;
}

}  // namespace

BoardSizes boardSizes(std::string_view gameType, bool useQWERTY, bool smallScreen) {
  const SizeRow& row = kSizes[sizeClass(findGameType(gameType))];
  const double key = orSmall(useQWERTY ? row.keyQwerty : row.keyAlpha, row.smallKey, smallScreen);
  const double cell = useQWERTY ? orSmall(row.cellQwerty, row.smallCellQwerty, smallScreen)
                                : orSmall(row.cellAlpha, row.smallCellAlpha, smallScreen);
  return {key, cell};
}

BoardMetrics boardMetrics(std::string_view gameType, bool useQWERTY, double width, double height) {
  const BoardSizes sizes = boardSizes(gameType, useQWERTY, height < kSmallScreenHeight);
  return {sizes.cellWidth * width, sizes.keypadWidth * width};
}

}  // namespace tessarine
