// The keys of a board: what each shows and the colour the knowledge passes gave it.
#pragma once

#include <algorithm>
#include <array>
#include <string>

#include "catalogue/catalogue.h"
#include "engine/tile_color.h"

namespace tessarine {

struct Keypad {
  std::array<std::string, kKeypadSize> keypadLetters = blanks();
  int keypadNumber = 0;
  std::array<TileColor, kKeypadSize> keypadKeyColor = whites();

  void applyLayout(const KeypadLayout& layout) {
    std::copy(layout.letters.begin(), layout.letters.end(), keypadLetters.begin());
    keypadNumber = layout.number;
  }

 private:
  static std::array<std::string, kKeypadSize> blanks() {
    std::array<std::string, kKeypadSize> keys;
    keys.fill(" ");
    return keys;
  }
  static std::array<TileColor, kKeypadSize> whites() {
    std::array<TileColor, kKeypadSize> colors;
    colors.fill(TileColor::white);
    return colors;
  }
};

}  // namespace tessarine
