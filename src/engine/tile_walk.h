// Shared walk of the knowledge passes: every tile of one colour in rows 0..`activeRow`.
#pragma once

#include <algorithm>
#include <string>

#include "engine/board.h"
#include "engine/keypad.h"
#include "engine/knowledge.h"

namespace tessarine {

// Colours the keys that show each matching tile's symbol, then calls `visit(column, symbol)`.
template <typename Visit>
void forTiles(const Board& board, Keypad& keypad, TileColor color, Visit visit) {
  for (int r = 0; r <= board.activeRow; ++r) {
    for (int c = 0; c < board.gameLetters; ++c) {
      const int cell = cellIndex(board, r, c);
      if (cell < 0 || board.cellBackground[static_cast<std::size_t>(cell)] != color) continue;
      const std::string& symbol = board.cellLetter[static_cast<std::size_t>(cell)];
      for (int k = 0; k < keypad.keypadNumber && k < kKeypadSize; ++k) {
        const auto key = static_cast<std::size_t>(k);
        if (keypad.keypadLetters[key] == symbol) keypad.keypadKeyColor[key] = color;
      }
      visit(c, symbol);
    }
  }
}

inline void addUniqueSymbol(Knowledge& knowledge, const std::string& symbol) {
  auto& unique = knowledge.hintLettersUnique;
  if (std::find(unique.begin(), unique.end(), symbol) == unique.end()) unique.push_back(symbol);
}

}  // namespace tessarine
