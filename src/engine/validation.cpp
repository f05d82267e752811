#include "engine/validation.h"

#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/equation.h"

namespace tessarine {

bool isValidGuess(std::string_view gameType, const Lists& lists, std::string_view guess) {
  if (guess.empty()) return true;
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr) return true;
  // Six tiles leave room for one operator only.
  if (info->isEquation())
    return info->tiles <= 6 ? isValidOneOperatorEquation(guess) : isValidTwoOperatorEquation(guess);
  if (info->validityFile.empty()) return true;
  const std::string listName(info->validityFile);
  if (info->kind == GameKind::primeNumbers) return lists.containsLine(listName, guess);
  return lists.containsWord(listName, guess);
}

bool wasUsedBefore(const Board& board, std::string_view guess) {
  for (int row = 0; row < board.activeRow; ++row) {
    if (rowWord(board, row) == guess) return true;
  }
  return false;
}

}  // namespace tessarine
