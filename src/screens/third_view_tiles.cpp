// The rows of tiles beside the how-to-play examples. Each example shows only the case its text
// names: the named symbol takes its colour and the rest of the row stays white. A Smart Mode
// example has the earlier guess and the next one, whose offending cells are red.
#include <array>

#include "screens/third_view_parts.h"

namespace tessarine::help {
namespace {

// A row is "SYMBOLS:COLOURS", the colours by their board-dump letters (W white, X gray, G green,
// B blue, Y yellow, O orange, R red, C cyan, P purple); a second row follows after a blank.
struct FamilyRows {
  std::string_view englishWords, spanishWords, numbers, equations;
};

// In the order of the colour hint examples.
constexpr std::array<FamilyRows, 10> kColourHintRows = {{
    {"CLOTH:GWWWW", "GATOS:GWWWW", "52817:GWWWW", "18/3=6:GWWWWW"},
    {"STORM:WWYWW", "MESAS:WYWWW", "41235:YWWWW", "4X3=12:YWWWWW"},
    {"PLANT:BWWWW", "ARBOL:BWWWW", "16420:BWWWW", "7+8=15:BWWWWW"},
    {"DODGE:OWOWW", "PAPAS:OWOWW", "77140:OOWWW", "10-1=9:OWWOWW"},
    {"RUSTY:XWWWW", "NUBES:XWWWW", "38516:XWWWW", "9+3=12:WXWWWW"},
    {"QAZ:CCC", "QAZ:CCC", "435:CCC", "7X6=41:CCCWCC"},
    {"CAT:PPP", "GATO:PPPP", "823:PPP", "6X7=42:PPPWPP"},
    {"HELLO:WWGYW", "CALLE:WWGYW", "33415:GYWWW", "4X4=16:GWYWWW"},
    {"HELLO:WWGOW", "CALLE:WWGOW", "33415:GOWWW", "4X4=16:GWOWWW"},
    {"HELLO:WWBYW", "CALLE:WWBYW", "33415:BYWWW", "4X4=16:BWYWWW"},
}};

// In the order of the Smart Mode error examples.
constexpr std::array<FamilyRows, 6> kSmartModeRows = {{
    {"CLOTH:GWWWW SCALD:RWWWW", "GATOS:GWWWW LAGOS:RWWWW", "52817:GWWWW 25817:RWWWW",
     "18/3=6:GWWWWW 24/4=6:RWWWWW"},
    {"CRANE:WWXWW SALTY:WRWWW", "MONTE:WXWWW SOPLA:WRWWW", "41235:XWWWW 14235:WRWWW",
     "7X6=42:XWWWWW 8X7=56:WWRWWW"},
    {"STORM:WYWWW ATLAS:WRWWW", "MONTE:WYWWW BOLSA:WRWWW", "27135:WYWWW 37248:WRWWW",
     "27/9=3:WYWWWW 17-9=8:WRWWWW"},
    {"STORM:WYWWW CRANE:RWRRR", "GATOS:WWYWW LIMON:RRWRR", "27135:WYWWW 48296:RWRRR",
     "27/9=3:WYWWWW 18/6=3:RWRRRR"},
    {"DRAWN:BWWWW DIRTY:RWWWW", "DUCHA:BWWWW DIOSA:RWWWW", "70381:BWWWW 72946:RWWWW",
     "8X3=24:BWWWWW 8X4=32:RWWWWW"},
    {"THERE:WWOWO SHEEP:WWRRW", "PEINE:WOWWO NIEVE:WWRWR", "11523:OOWWW 16107:RWRWW",
     "10-1=9:OWWOWW 11-2=9:RRWWWW"},
}};

TileColor colourOf(char letter) {
  for (int c = 0; c <= static_cast<int>(TileColor::pink); ++c) {
    if (tileColorLetter(static_cast<TileColor>(c)) == letter) return static_cast<TileColor>(c);
  }
  return TileColor::white;
}

// The symbols are ASCII, one byte a tile.
ExampleRow parseRow(std::string_view text) {
  const std::size_t colon = text.find(':');
  ExampleRow row;
  for (std::size_t i = 0; i < colon; ++i)
    row.push_back({std::string(1, text[i]), colourOf(text[colon + 1 + i])});
  return row;
}

std::vector<ExampleRow> parseRows(std::string_view text) {
  std::vector<ExampleRow> rows;
  while (!text.empty()) {
    const std::size_t space = text.find(' ');
    rows.push_back(parseRow(text.substr(0, space)));
    text = space == std::string_view::npos ? std::string_view() : text.substr(space + 1);
  }
  return rows;
}

std::vector<ExampleRow> rowsFor(const FamilyRows& rows, const GameTypeInfo* info, bool english) {
  if (info == nullptr || info->typeOfGame.empty()) return {};  // the general texts have no example
  if (info->typeOfGame == "N") return parseRows(rows.numbers);
  if (info->typeOfGame == "E") return parseRows(rows.equations);
  // The rows spell the letters that the text of the sheet's language names.
  return parseRows(english ? rows.englishWords : rows.spanishWords);
}

}  // namespace

std::vector<ExampleRow> colourHintTiles(std::size_t example, const GameTypeInfo* info, bool english) {
  return example < kColourHintRows.size() ? rowsFor(kColourHintRows[example], info, english)
                                          : std::vector<ExampleRow>{};
}

std::vector<ExampleRow> smartModeTiles(std::size_t example, const GameTypeInfo* info, bool english) {
  return example < kSmartModeRows.size() ? rowsFor(kSmartModeRows[example], info, english)
                                         : std::vector<ExampleRow>{};
}

}  // namespace tessarine::help
