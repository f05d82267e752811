#include "engine/keypad_colors.h"

#include <algorithm>
#include <string>

#include "engine/hints.h"
#include "engine/tile_walk.h"

namespace tessarine {
void markGrayKeys(const Board& board, Keypad& keypad, Knowledge& knowledge) {
  knowledge.grayLetters.clear();
  knowledge.grayLetterRanking.clear();
  forTiles(board, keypad, TileColor::gray, [&knowledge](int, const std::string& symbol) {
    const auto found = std::find(kSymbolFrequency.begin(), kSymbolFrequency.end(), symbol);
    if (found == kSymbolFrequency.end()) return;  // operators colour their key only
    const int rank = static_cast<int>(found - kSymbolFrequency.begin());
    auto& ranking = knowledge.grayLetterRanking;
    if (std::find(ranking.begin(), ranking.end(), rank) == ranking.end()) ranking.push_back(rank);
  });
  std::sort(knowledge.grayLetterRanking.begin(), knowledge.grayLetterRanking.end());
  for (int rank : knowledge.grayLetterRanking) {
    knowledge.grayLetters.emplace_back(kSymbolFrequency[static_cast<std::size_t>(rank)]);
  }
}

void markOrangeKeys(const Board& board, Keypad& keypad, Knowledge& knowledge) {
  knowledge.hintLettersUnique.clear();
  knowledge.hintLettersExact.clear();
  knowledge.hintLettersLower.clear();
  knowledge.hintLettersUpper.clear();
  forTiles(board, keypad, TileColor::orange,
           [&knowledge](int, const std::string& symbol) { addUniqueSymbol(knowledge, symbol); });
}

void markYellowKeys(const Board& board, Keypad& keypad, Knowledge& knowledge) {
  forTiles(board, keypad, TileColor::yellow,
           [&knowledge](int, const std::string& symbol) { addUniqueSymbol(knowledge, symbol); });
}

bool markBlueKeys(const Board& board, Keypad& keypad, Knowledge& knowledge) {
  knowledge.greenLetters.assign(static_cast<std::size_t>(std::max(board.gameLetters, 0)), std::string());
  knowledge.greenLetterPosition.clear();
  bool found = false;
  forTiles(board, keypad, TileColor::blue, [&](int column, const std::string& symbol) {
    knowledge.greenLetters[static_cast<std::size_t>(column)] = symbol;
    addUniqueSymbol(knowledge, symbol);
    found = true;
  });
  return found;
}

bool updateKnowledge(const Board& board, Keypad& keypad, Knowledge& knowledge) {
  markGrayKeys(board, keypad, knowledge);
  markOrangeKeys(board, keypad, knowledge);
  markYellowKeys(board, keypad, knowledge);
  const bool blue = markBlueKeys(board, keypad, knowledge);
  const bool green = updateGreenKnowledge(board, keypad, knowledge);
  return blue || green;
}

}  // namespace tessarine
