// Shared walk of the knowledge passes: every tile of one colour in rows 0..`activeRow`.
#pragma once

#include <algorithm>
#include <string>

#include "engine/scoring.h"
#include "session/content_view.h"

namespace tessarine {

// Colours the keys that show each matching tile's symbol, then calls `visit(column, symbol)`.
template <typename Visit>
void forTiles(ContentView& view, TileColor color, Visit visit) {
  for (int r = 0; r <= view.activeRow; ++r) {
    for (int c = 0; c < view.gameLetters; ++c) {
      const int cell = cellIndex(view, r, c);
      if (cell < 0 || view.cellBackground[static_cast<std::size_t>(cell)] != color) continue;
      const std::string& symbol = view.cellLetter[static_cast<std::size_t>(cell)];
      for (int k = 0; k < view.keypadNumber && k < kKeypadSize; ++k) {
        const auto key = static_cast<std::size_t>(k);
        if (view.keypadLetters[key] == symbol) view.keypadKeyColor[key] = color;
      }
      visit(c, symbol);
    }
  }
}

inline void addUniqueSymbol(ContentView& view, const std::string& symbol) {
  auto& unique = view.hintLettersUnique;
  if (std::find(unique.begin(), unique.end(), symbol) == unique.end()) unique.push_back(symbol);
}

}  // namespace tessarine
