#include "tile_items.h"

#include <algorithm>

#include "core_text.h"
#include "screens/colour_marks.h"
#include "tile_texts.h"

TileItem tileItem(const std::string& symbol, tessarine::TileColor color, bool equation, bool colourBlind) {
  TileItem item;
  // An empty cell is three blanks; the screen draws nothing for it.
  item.symbol = symbol == tessarine::kEmptyCell ? QString() : fromCore(symbol);
  item.colorName = fromCore(tessarine::tileColorName(color));
  item.glyph = glyphFor(item.symbol, equation);
  item.spokenName = spokenName(item.symbol, item.colorName, equation);
  if (colourBlind) item.pattern = fromCore(tessarine::colourBlindMark(color));
  return item;
}

std::vector<TileItem> boardItems(const tessarine::Board& board, int rows, bool colourBlind) {
  const int columns = std::max(board.gameLetters, 0);
  const int cells = std::min(rows * columns, board.maximumCells);
  const bool equation = board.typeOfGame == "E";
  std::vector<TileItem> items;
  items.reserve(static_cast<std::size_t>(std::max(cells, 0)));
  for (int i = 0; i < cells; ++i) {
    const auto at = static_cast<std::size_t>(i);
    TileItem item = tileItem(board.cellLetter[at], board.cellBackground[at], equation, colourBlind);
    item.borderWidth = board.cellBorderWidth[at];
    item.gridRow = i / columns;
    item.gridColumn = i % columns;
    item.spokenName = QStringLiteral("row %1, column %2, ").arg(item.gridRow + 1).arg(item.gridColumn + 1) +
                      item.spokenName;
    item.rowLength = columns;
    items.push_back(std::move(item));
  }
  return items;
}

std::vector<TileItem> keypadItems(const tessarine::Keypad& keypad,
                                  const std::vector<std::vector<int>>& keyRows, bool equation,
                                  bool colourBlind) {
  const int keys = std::min(keypad.keypadNumber, static_cast<int>(keypad.keypadLetters.size()));
  std::vector<TileItem> items;
  for (int i = 0; i < keys; ++i) {
    const auto at = static_cast<std::size_t>(i);
    items.push_back(tileItem(keypad.keypadLetters[at], keypad.keypadKeyColor[at], equation, colourBlind));
  }
  // A layout can name more keys than a keypad that is not set up yet has.
  for (std::size_t row = 0; row < keyRows.size(); ++row) {
    int column = 0;
    const auto present =
        std::count_if(keyRows[row].begin(), keyRows[row].end(), [keys](int k) { return k < keys; });
    for (const int key : keyRows[row]) {
      if (key >= keys) continue;
      TileItem& item = items[static_cast<std::size_t>(key)];
      item.gridRow = static_cast<int>(row);
      item.gridColumn = column++;
      item.rowLength = static_cast<int>(present);
    }
  }
  return items;
}
