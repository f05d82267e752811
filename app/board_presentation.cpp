#include "board_presentation.h"

#include <algorithm>

#include "catalogue/catalogue.h"

using tessarine::ContentView;
using tessarine::GameKind;

namespace {

constexpr int kAlphaKeysPerRow = 7;
constexpr double kSmallScreenHeight = 800;

bool isOneOf(const std::string& value, std::initializer_list<const char*> choices) {
  return std::any_of(choices.begin(), choices.end(), [&](const char* c) { return value == c; });
}

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

BoardMetrics boardMetrics(const std::string& gameType, bool useQWERTY, double width, double height) {
  const bool small = height < kSmallScreenHeight;
  const auto* info = tessarine::findGameType(gameType);
  double key = useQWERTY ? 0.08 : 0.1;
  double cell = 0.108;
  if (info == nullptr) return {cell * width, key * width};
  const bool words = info->kind == GameKind::englishWords || info->kind == GameKind::spanishWords ||
                     info->kind == GameKind::geniusWords;
  if (words && info->rows == 7) {
    cell = useQWERTY ? (small ? 0.094 : 0.108) : (small ? 0.08 : 0.09);
  } else if (words && info->tiles == 7) {
    cell = 0.094;
  } else if (words && info->tiles == 8) {
    cell = 0.081;
  } else if (isOneOf(gameType, {"G", "H"})) {
    key = small ? 0.081 : 0.094;
    cell = 0.094;
  } else if (!words) {
    key = 0.111;
    cell = 0.081;
  }
  return {cell * width, key * width};
}

double fittedLayoutWidth(const std::string& gameType, bool useQWERTY, int boardRows, int keypadRows, double width,
                         double height) {
  // What does not grow with the width: the title bar, the date bar, the reserved message line,
  // the buttons under the keypad, the two hint lines and the margins; then the gaps of the rows.
  constexpr double kFixed = 368;
  constexpr double kTileGap = 4, kKeyGap = 6, kKeyAspect = 1.45;
  // Tiles and keys are fractions of the width, so the screen's height is a line in the width.
  const BoardMetrics perUnit = boardMetrics(gameType, useQWERTY, 1.0, height);
  const double growth = boardRows * perUnit.cellWidth + keypadRows * kKeyAspect * perUnit.keypadWidth;
  const double room = height - kFixed - boardRows * kTileGap - keypadRows * kKeyGap;
  if (growth <= 0 || room <= 0) return width;
  return std::max(200.0, std::min(width, room / growth));
}
