#include "board_presentation.h"

#include <algorithm>

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
  const int keys = std::min(view.keypadNumber, static_cast<int>(view.keypadLetters.size()));
  if (view.typeOfGame == "N") return {range(0, 3), range(3, 6), range(6, 9), range(9, keys)};
  if (view.typeOfGame == "E") return {range(0, 4), range(4, 8), range(8, 12), range(12, keys)};
  if (view.useQWERTY) {
    const int second = keys == 27 ? 20 : 19;  // the Spanish middle row ends with Ñ
    return {range(0, 10), range(10, second), range(second, keys)};
  }
  std::vector<int> order = range(0, keys);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    return alphabeticalKey(view.keypadLetters[a]) < alphabeticalKey(view.keypadLetters[b]);
  });
  std::vector<std::vector<int>> rows;
  for (std::size_t i = 0; i < order.size(); i += kAlphaKeysPerRow) {
    const auto end = std::min(order.size(), i + kAlphaKeysPerRow);
    rows.emplace_back(order.begin() + static_cast<long>(i), order.begin() + static_cast<long>(end));
  }
  return rows;
}
