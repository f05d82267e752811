#include "board_presentation.h"

#include <algorithm>

#include "screens/board_sizes.h"

using tessarine::ContentView;

namespace {

constexpr int kAlphaKeysPerRow = 7;

std::vector<int> range(int from, int to) {
  std::vector<int> indices;
  for (int i = from; i < to; ++i)
    indices.push_back(i);
  return indices;
}

// Alphabetical order with Ñ right after N, as a Spanish speaker expects.
std::string alphabeticalKey(const std::string& symbol) {
  if (symbol == "Ñ") return "N~";
  return symbol;
}

}  // namespace

std::vector<std::vector<int>> keyRows(const ContentView& view) {
  return keyRows(view, view.typeOfGame, view.useQWERTY);
}

std::vector<std::vector<int>> keyRows(const tessarine::Keypad& keypad, const std::string& typeOfGame,
                                      bool useQWERTY) {
  const int keys = std::min(keypad.keypadNumber, static_cast<int>(keypad.keypadLetters.size()));
  if (typeOfGame == "N") return {range(0, 3), range(3, 6), range(6, 9), range(9, keys)};
  if (typeOfGame == "E") return {range(0, 4), range(4, 8), range(8, 12), range(12, keys)};
  if (useQWERTY) {
    const int second = keys == 27 ? 20 : 19;  // the Spanish middle row ends with Ñ
    return {range(0, 10), range(10, second), range(second, keys)};
  }
  std::vector<int> order = range(0, keys);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    return alphabeticalKey(keypad.keypadLetters[a]) < alphabeticalKey(keypad.keypadLetters[b]);
  });
  std::vector<std::vector<int>> rows;
  for (std::size_t i = 0; i < order.size(); i += kAlphaKeysPerRow) {
    const auto end = std::min(order.size(), i + kAlphaKeysPerRow);
    rows.emplace_back(order.begin() + static_cast<long>(i), order.begin() + static_cast<long>(end));
  }
  return rows;
}

double fittedLayoutWidth(const std::string& gameType, bool useQWERTY, int boardRows, int keypadRows,
                         double width, double height) {
  // What does not grow with the width: the title bar, the date bar, the reserved message line,
  // the buttons under the keypad, the two hint lines and the margins; then the gaps of the rows.
  constexpr double kFixed = 368;
  constexpr double kTileGap = 4, kKeyGap = 6, kKeyAspect = 1.45;
  // Tiles and keys are fractions of the width, so the screen's height is a line in the width.
  const tessarine::BoardMetrics perUnit = tessarine::boardMetrics(gameType, useQWERTY, 1.0, height);
  const double growth = boardRows * perUnit.cellWidth + keypadRows * kKeyAspect * perUnit.keypadWidth;
  const double room = height - kFixed - boardRows * kTileGap - keypadRows * kKeyGap;
  if (growth <= 0 || room <= 0) return width;
  return std::max(200.0, std::min(width, room / growth));
}
