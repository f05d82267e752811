#include <algorithm>

#include "engine/hints.h"
#include "engine/tile_walk.h"

namespace tessarine {
namespace {

bool holds(const Board& board, int row, int column, const std::string& symbol, TileColor a, TileColor b) {
  const int cell = cellIndex(board, row, column);
  if (cell < 0) return false;
  const auto n = static_cast<std::size_t>(cell);
  return board.cellLetter[n] == symbol && (board.cellBackground[n] == a || board.cellBackground[n] == b);
}

// Per known symbol: the columns still open to it, and those a yellow or orange tile closed.
void collectPositions(const Board& board, Knowledge& knowledge) {
  for (const std::string& symbol : knowledge.hintLettersUnique) {
    knowledge.hintOpenPosition.clear();
    knowledge.yellowClosePosition.clear();
    for (int c = 0; c < board.gameLetters; ++c) {
      bool closed = false;
      for (int r = 0; r <= board.activeRow && !closed; ++r) {
        closed = holds(board, r, c, symbol, TileColor::yellow, TileColor::orange);
      }
      (closed ? knowledge.yellowClosePosition : knowledge.hintOpenPosition).push_back(c);
    }
    knowledge.hintOpenGroups.push_back(knowledge.hintOpenPosition);
    if (!knowledge.yellowClosePosition.empty()) {
      knowledge.yellowLetters.push_back(symbol);
      knowledge.yellowCloseGroups.push_back(knowledge.yellowClosePosition);
    }
  }
}

void countTiles(const Board& board, Knowledge& knowledge, int row, const std::string& symbol) {
  knowledge.numberOfGreen = knowledge.numberOfBlue = knowledge.numberOfYellow = knowledge.numberOfOrange = 0;
  for (int c = 0; c < board.gameLetters; ++c) {
    const int cell = cellIndex(board, row, c);
    if (cell < 0 || board.cellLetter[static_cast<std::size_t>(cell)] != symbol) continue;
    switch (board.cellBackground[static_cast<std::size_t>(cell)]) {
      case TileColor::green:
        ++knowledge.numberOfGreen;
        break;
      case TileColor::blue:
        ++knowledge.numberOfBlue;
        break;
      case TileColor::yellow:
        ++knowledge.numberOfYellow;
        break;
      case TileColor::orange:
        ++knowledge.numberOfOrange;
        break;
      default:
        break;
    }
  }
}

// One row's evidence on a symbol's count; the first rule that matches applies. The rules with
// orange tiles bound more loosely than they could: the filter is built on exactly these.
void applyCountRule(Knowledge& knowledge) {
  const int g = knowledge.numberOfGreen, b = knowledge.numberOfBlue, y = knowledge.numberOfYellow,
            o = knowledge.numberOfOrange;
  int& exact = knowledge.numberOfExact;
  int& lower = knowledge.numberOfLower;
  int& upper = knowledge.numberOfUpper;
  if (g >= 1 && o == 0) {
    exact = g + y;
  } else if (g >= 1 && o == 1) {
    exact = g;
  } else if (g >= 1) {
    upper = std::min(upper, g + o - 1);
  } else if (b >= 1 && o == 0) {
    lower = std::max(lower, b + y + 1);
  } else if (b >= 1) {
    lower = std::max(lower, b + o - 1);
  } else if (y >= 1) {
    lower = std::max(lower, y);
  } else if (o >= 1) {
    upper = std::min(upper, o - 1);
    if (lower == 0) lower = 1;
  }
}

void boundCounts(const Board& board, Knowledge& knowledge) {
  for (const std::string& symbol : knowledge.hintLettersUnique) {
    knowledge.numberOfExact = 0;
    knowledge.numberOfUpper = board.gameLetters;
    knowledge.numberOfLower = 0;
    for (int r = 0; r <= board.activeRow; ++r) {
      countTiles(board, knowledge, r, symbol);
      applyCountRule(knowledge);
    }
    if (knowledge.numberOfLower == knowledge.numberOfUpper) knowledge.numberOfExact = knowledge.numberOfLower;
    knowledge.hintLettersExact.push_back(knowledge.numberOfExact);
    knowledge.hintLettersLower.push_back(knowledge.numberOfLower);
    knowledge.hintLettersUpper.push_back(knowledge.numberOfUpper);
  }
}

}  // namespace

bool updateGreenKnowledge(const Board& board, Keypad& keypad, Knowledge& knowledge) {
  knowledge.hintOpenGroups.clear();
  knowledge.yellowLetters.clear();
  knowledge.yellowCloseGroups.clear();
  // The blue pass sizes this; a caller that skipped it still gets one entry per column.
  knowledge.greenLetters.resize(static_cast<std::size_t>(std::max(board.gameLetters, 0)));
  bool found = false;
  forTiles(board, keypad, TileColor::green, [&](int column, const std::string& symbol) {
    knowledge.greenLetters[static_cast<std::size_t>(column)] = symbol;
    addUniqueSymbol(knowledge, symbol);
    found = true;
  });
  knowledge.greenLetterPosition.clear();
  for (int c = 0; c < board.gameLetters; ++c) {
    if (!knowledge.greenLetters[static_cast<std::size_t>(c)].empty())
      knowledge.greenLetterPosition.push_back(c);
  }
  collectPositions(board, knowledge);
  boundCounts(board, knowledge);
  return found;
}

}  // namespace tessarine
