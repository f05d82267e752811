#include "challenge/match_fills.h"

#include <array>

#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

// Columns: found, walked, struck, missed, intentional walk. Numbers need two symbols, since
// neither "#" nor "?" alone is enough for five moves; the second stands in the last cell.
struct FillRow {
  std::array<const char*, 5> body;
  std::array<const char*, 5> last;
};

const FillRow& fillsOf(const std::string& gameType) {
  static const FillRow letters = {{"Z", "W", "S", "F", "I"}, {"Z", "W", "S", "F", "I"}};
  static const FillRow digits = {{"9", "4", "3", "5", "4"}, {"9", "4", "3", "5", "4"}};
  static const FillRow numbers = {{"?", "#", "#", "?", "#"}, {"?", "?", "#", "#", "#"}};
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr || info->isWordGame()) return letters;
  if (info->kind == GameKind::allNumbers) return numbers;
  return digits;  // primes and equations
}

}  // namespace

std::vector<std::string> signalFill(const std::string& gameType, SignalMove move, int gameLetters,
                                    int equalsColumn) {
  const FillRow& fills = fillsOf(gameType);
  const auto m = static_cast<std::size_t>(move);
  std::vector<std::string> symbols(static_cast<std::size_t>(gameLetters), fills.body[m]);
  if (!symbols.empty()) symbols.back() = fills.last[m];
  if (isEquationType(gameType) && equalsColumn >= 0 && equalsColumn < gameLetters)
    symbols[static_cast<std::size_t>(equalsColumn)] = "=";
  return symbols;
}

bool rowHoldsFill(const Board& board, const std::string& gameType, SignalMove move) {
  const auto fill = signalFill(gameType, move, board.gameLetters, board.answer.equalsColumn);
  for (int column = 0; column < board.gameLetters; ++column) {
    const int cell = cellIndex(board, board.activeRow, column);
    if (cell < 0 ||
        board.cellLetter[static_cast<std::size_t>(cell)] != fill[static_cast<std::size_t>(column)])
      return false;
  }
  return true;
}

}  // namespace tessarine
