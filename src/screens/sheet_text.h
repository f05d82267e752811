// The texts of the help sheets as plain values: ordered sections of lines, each line with the
// symbol and colour that a screen draws beside it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/tile_color.h"

namespace tessarine {

// One text in both languages. An empty Spanish form means the text stays English in both.
struct Bilingual {
  std::string_view english;
  std::string_view spanish;
};

inline std::string_view pick(const Bilingual& text, bool EnglishTranslation) {
  return EnglishTranslation || text.spanish.empty() ? text.english : text.spanish;
}

// The same sentence for the three families, as the examples name letters, numbers or operators.
struct FamilyTexts {
  Bilingual words;
  Bilingual numbers;
  Bilingual equations;
};

// One tile of an example row, drawn as the board draws its tiles.
struct ExampleTile {
  std::string symbol;
  TileColor colour;
  friend bool operator==(const ExampleTile&, const ExampleTile&) = default;
};
using ExampleRow = std::vector<ExampleTile>;

struct SheetLine {
  std::string text;
  std::string_view symbol;          // system symbol name drawn beside the line; empty for none
  std::optional<TileColor> colour;  // colour of the example tile or of the symbol
  // Rows of tiles beside an example: a guess, and for a Smart Mode error the next guess too.
  std::vector<ExampleRow> tiles = {};
};

struct SheetSection {
  std::string heading;  // empty for a section that runs on under the one before
  std::vector<SheetLine> lines;
};

}  // namespace tessarine
