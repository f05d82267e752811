#include <algorithm>

#include "engine/hints.h"
#include "engine/tile_walk.h"

namespace tessarine {
namespace {

bool holds(const ContentView& view, int row, int column, const std::string& symbol, TileColor a,
           TileColor b) {
  const int cell = cellIndex(view, row, column);
  if (cell < 0) return false;
  const auto n = static_cast<std::size_t>(cell);
  return view.cellLetter[n] == symbol && (view.cellBackground[n] == a || view.cellBackground[n] == b);
}

// Per known symbol: the columns still open to it, and those a yellow or orange tile closed.
void collectPositions(ContentView& view) {
  for (const std::string& symbol : view.hintLettersUnique) {
    view.hintOpenPosition.clear();
    view.yellowClosePosition.clear();
    for (int c = 0; c < view.gameLetters; ++c) {
      bool closed = false;
      for (int r = 0; r <= view.activeRow && !closed; ++r) {
        closed = holds(view, r, c, symbol, TileColor::yellow, TileColor::orange);
      }
      (closed ? view.yellowClosePosition : view.hintOpenPosition).push_back(c);
    }
    view.hintOpenGroups.push_back(view.hintOpenPosition);
    if (!view.yellowClosePosition.empty()) {
      view.yellowLetters.push_back(symbol);
      view.yellowCloseGroups.push_back(view.yellowClosePosition);
    }
  }
}

void countTiles(ContentView& view, int row, const std::string& symbol) {
  view.numberOfGreen = view.numberOfBlue = view.numberOfYellow = view.numberOfOrange = 0;
  for (int c = 0; c < view.gameLetters; ++c) {
    const int cell = cellIndex(view, row, c);
    if (cell < 0 || view.cellLetter[static_cast<std::size_t>(cell)] != symbol) continue;
    switch (view.cellBackground[static_cast<std::size_t>(cell)]) {
      case TileColor::green:
        ++view.numberOfGreen;
        break;
      case TileColor::blue:
        ++view.numberOfBlue;
        break;
      case TileColor::yellow:
        ++view.numberOfYellow;
        break;
      case TileColor::orange:
        ++view.numberOfOrange;
        break;
      default:
        break;
    }
  }
}

// One row's evidence on a symbol's count; the first rule that matches applies. The rules with
// orange tiles bound more loosely than they could: the filter is built on exactly these.
void applyCountRule(ContentView& view) {
  const int g = view.numberOfGreen, b = view.numberOfBlue, y = view.numberOfYellow, o = view.numberOfOrange;
  int& exact = view.numberOfExact;
  int& lower = view.numberOfLower;
  int& upper = view.numberOfUpper;
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

void boundCounts(ContentView& view) {
  for (const std::string& symbol : view.hintLettersUnique) {
    view.numberOfExact = 0;
    view.numberOfUpper = view.gameLetters;
    view.numberOfLower = 0;
    for (int r = 0; r <= view.activeRow; ++r) {
      countTiles(view, r, symbol);
      applyCountRule(view);
    }
    if (view.numberOfLower == view.numberOfUpper) view.numberOfExact = view.numberOfLower;
    view.hintLettersExact.push_back(view.numberOfExact);
    view.hintLettersLower.push_back(view.numberOfLower);
    view.hintLettersUpper.push_back(view.numberOfUpper);
  }
}

}  // namespace

bool updateGreenKnowledge(ContentView& view) {
  view.hintOpenGroups.clear();
  view.yellowLetters.clear();
  view.yellowCloseGroups.clear();
  // The blue pass sizes this; a caller that skipped it still gets one entry per column.
  view.greenLetters.resize(static_cast<std::size_t>(std::max(view.gameLetters, 0)));
  bool found = false;
  forTiles(view, TileColor::green, [&](int column, const std::string& symbol) {
    view.greenLetters[static_cast<std::size_t>(column)] = symbol;
    addUniqueSymbol(view, symbol);
    found = true;
  });
  view.greenLetterPosition.clear();
  for (int c = 0; c < view.gameLetters; ++c) {
    if (!view.greenLetters[static_cast<std::size_t>(c)].empty()) view.greenLetterPosition.push_back(c);
  }
  collectPositions(view);
  boundCounts(view);
  return found;
}

}  // namespace tessarine
