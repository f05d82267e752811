#include "engine/scoring.h"

#include <algorithm>

#include "catalogue/lists.h"

namespace tessarine {

void scoreGuess(Board& board, std::string_view guess) {
  const auto& answer = board.answer.symbols;
  const auto symbols = splitSymbols(guess);
  const int equals = board.answer.equalsColumn;
  const auto length = static_cast<std::size_t>(std::max(board.gameLetters, 0));
  const auto countIn = [length](const std::vector<std::string>& text, const std::string& symbol) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(length, text.size()));
    return std::count(text.begin(), end, symbol);
  };
  for (std::size_t i = 0; i < length && i < symbols.size(); ++i) {
    const int cell = cellIndex(board, board.activeRow, static_cast<int>(i));
    if (cell < 0) continue;
    auto& tile = board.cellBackground[static_cast<std::size_t>(cell)];
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
      if (board.typeOfGame == "E" && static_cast<int>(i) == equals) tile = TileColor::white;
    } else {
      tile = inAnswer < inGuess ? TileColor::orange : TileColor::yellow;
    }
  }
}

void fillRow(Board& board, TileColor color, EqualsTile equals) {
  for (int c = 0; c < board.gameLetters; ++c) {
    const int cell = cellIndex(board, board.activeRow, c);
    if (cell >= 0) board.cellBackground[static_cast<std::size_t>(cell)] = color;
  }
  if (equals == EqualsTile::keepWhite && board.typeOfGame == "E") {
    const int cell = cellIndex(board, board.activeRow, board.answer.equalsColumn);
    if (cell >= 0) board.cellBackground[static_cast<std::size_t>(cell)] = TileColor::white;
  }
}

bool isWin(const Board& board, std::string_view guess) {
  return guess == board.answer.text;
}

}  // namespace tessarine
