#include "engine/keypad_colors.h"

#include <algorithm>
#include <string>

#include "engine/hints.h"
#include "engine/tile_walk.h"

namespace tessarine {
void markGrayKeys(ContentView& view) {
  view.grayLetters.clear();
  view.grayLetterRanking.clear();
  forTiles(view, TileColor::gray, [&view](int, const std::string& symbol) {
    const auto found = std::find(kSymbolFrequency.begin(), kSymbolFrequency.end(), symbol);
    if (found == kSymbolFrequency.end()) return;  // operators colour their key only
    const int rank = static_cast<int>(found - kSymbolFrequency.begin());
    auto& ranking = view.grayLetterRanking;
    if (std::find(ranking.begin(), ranking.end(), rank) == ranking.end()) ranking.push_back(rank);
  });
  std::sort(view.grayLetterRanking.begin(), view.grayLetterRanking.end());
  for (int rank : view.grayLetterRanking) {
    view.grayLetters.emplace_back(kSymbolFrequency[static_cast<std::size_t>(rank)]);
  }
}

void markOrangeKeys(ContentView& view) {
  view.hintLettersUnique.clear();
  view.hintLettersExact.clear();
  view.hintLettersLower.clear();
  view.hintLettersUpper.clear();
  forTiles(view, TileColor::orange,
           [&view](int, const std::string& symbol) { addUniqueSymbol(view, symbol); });
}

void markYellowKeys(ContentView& view) {
  forTiles(view, TileColor::yellow,
           [&view](int, const std::string& symbol) { addUniqueSymbol(view, symbol); });
}

bool markBlueKeys(ContentView& view) {
  view.greenLetters.assign(static_cast<std::size_t>(std::max(view.gameLetters, 0)), std::string());
  view.greenLetterPosition.clear();
  bool found = false;
  forTiles(view, TileColor::blue, [&](int column, const std::string& symbol) {
    view.greenLetters[static_cast<std::size_t>(column)] = symbol;
    addUniqueSymbol(view, symbol);
    found = true;
  });
  return found;
}

void updateKnowledge(ContentView& view) {
  markGrayKeys(view);
  markOrangeKeys(view);
  markYellowKeys(view);
  view.disableGreenButton = true;
  if (markBlueKeys(view)) view.disableGreenButton = false;
  if (updateGreenKnowledge(view)) view.disableGreenButton = false;
}

}  // namespace tessarine
