#include "engine/validation.h"

#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/equation.h"
#include "engine/scoring.h"
#include "session/content_view.h"

namespace tessarine {
namespace {

bool isOneOperatorType(std::string_view type) {
  return type == "M" || type == "N" || type == "O";
}

bool isTwoOperatorType(std::string_view type) {
  return type == "P" || type == "Q" || type == "R" || type == "S" || type == "T" || type == "U";
}

}  // namespace

bool isValidGuess(const ContentView& view, const Lists& lists, std::string_view guess) {
  if (guess.empty()) return true;
  const std::string_view type = view.gameType;
  if (isOneOperatorType(type)) return isValidOneOperatorEquation(guess);
  if (isTwoOperatorType(type)) return isValidTwoOperatorEquation(guess);
  const GameTypeInfo* info = findGameType(type);
  if (info == nullptr || info->validityFile.empty()) return true;
  const std::string listName(info->validityFile);
  if (info->kind == GameKind::primeNumbers) return lists.containsLine(listName, guess);
  return lists.containsWord(listName, guess);
}

bool wasUsedBefore(const ContentView& view, std::string_view guess) {
  for (int row = 0; row < view.activeRow; ++row) {
    if (rowWord(view, row) == guess) return true;
  }
  return false;
}

}  // namespace tessarine
