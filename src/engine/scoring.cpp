#include "engine/scoring.h"

#include <algorithm>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "session/content_view.h"

namespace tessarine {
namespace {

int lastEquals(const std::vector<std::string>& symbols) {
  for (int i = static_cast<int>(symbols.size()) - 1; i >= 0; --i) {
    if (symbols[static_cast<std::size_t>(i)] == "=") return i;
  }
  return 0;
}

}  // namespace

std::string mysteryAnswer(const ContentView& view, const Lists& lists) {
  return lists.answer(view.gameType, view.latestDateIndex + view.activeDate);
}

int equalsIndex(const ContentView& view, const Lists& lists) {
  return lastEquals(splitSymbols(mysteryAnswer(view, lists)));
}

int cellIndex(const ContentView& view, int row, int column) {
  const int index = row * view.gameLetters + column;
  return index >= 0 && index < kMaximumCells ? index : -1;
}

std::string rowWord(const ContentView& view, int row) {
  std::string word;
  for (int c = 0; c < view.gameLetters; ++c) {
    const int cell = cellIndex(view, row, c);
    if (cell >= 0) word += view.cellLetter[static_cast<std::size_t>(cell)];
  }
  return word;
}

void scoreGuess(ContentView& view, const Lists& lists, std::string_view guess) {
  const auto answer = splitSymbols(mysteryAnswer(view, lists));
  const auto symbols = splitSymbols(guess);
  const int equals = lastEquals(answer);
  const auto length = static_cast<std::size_t>(std::max(view.gameLetters, 0));
  const auto countIn = [length](const std::vector<std::string>& text, const std::string& symbol) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(length, text.size()));
    return std::count(text.begin(), end, symbol);
  };
  for (std::size_t i = 0; i < length && i < symbols.size(); ++i) {
    const int cell = cellIndex(view, view.activeRow, static_cast<int>(i));
    if (cell < 0) continue;
    auto& tile = view.cellBackground[static_cast<std::size_t>(cell)];
    const std::string& g = symbols[i];
    if (std::find(answer.begin(), answer.end(), g) == answer.end()) {
      tile = TileColor::gray;
      continue;
    }
    const auto inAnswer = countIn(answer, g);
    const auto inGuess = countIn(symbols, g);
    if (i < answer.size() && answer[i] == g) {
      tile = inGuess < inAnswer ? TileColor::blue : TileColor::green;
      // A correct "=" is part of the board's frame, not a scored tile.
      if (view.typeOfGame == "E" && static_cast<int>(i) == equals) tile = TileColor::white;
    } else {
      tile = inAnswer < inGuess ? TileColor::orange : TileColor::yellow;
    }
  }
}

void fillRow(ContentView& view, const Lists& lists, TileColor color) {
  for (int c = 0; c < view.gameLetters; ++c) {
    const int cell = cellIndex(view, view.activeRow, c);
    if (cell >= 0) view.cellBackground[static_cast<std::size_t>(cell)] = color;
  }
  if (isEquationType(view.gameType)) {
    const int cell = cellIndex(view, view.activeRow, equalsIndex(view, lists));
    if (cell >= 0) view.cellBackground[static_cast<std::size_t>(cell)] = TileColor::white;
  }
}

bool isWin(const ContentView& view, const Lists& lists, std::string_view guess) {
  return guess == mysteryAnswer(view, lists);
}

}  // namespace tessarine
