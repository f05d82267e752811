#include "session/game_setup.h"

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"

namespace tessarine {

void applyCatalogue(ContentView& view) {
  const GameTypeInfo* info = findGameType(view.gameType);
  view.applyLayout(keypadLayout(info));
  if (info == nullptr) {
    view.disablePlusKey = view.disableMinusKey = view.disableMultiplyKey = view.disableDivideKey = false;
    view.gameLetters = kFallbackTiles;
    view.gameRows = kFallbackRows;
    view.pickingUp = std::to_string(kFallbackRows + 1);
    return;
  }
  view.typeOfGame = std::string(info->typeOfGame);
  view.gameLetters = info->tiles;
  view.gameRows = info->rows;
  view.pickingUp = std::to_string(info->rows + 1);
  view.disablePlusKey = view.disableMinusKey = info->operators == OperatorSet::multiplyDivide;
  view.disableMultiplyKey = view.disableDivideKey = info->operators == OperatorSet::addSubtract;
}

bool operatorDisabled(const ContentView& view, std::string_view symbol) {
  return (symbol == "+" && view.disablePlusKey) || (symbol == "-" && view.disableMinusKey) ||
         (symbol == "X" && view.disableMultiplyKey) || (symbol == "/" && view.disableDivideKey);
}

Answer shownAnswer(const ContentView& view, const Lists& lists) {
  return Answer(lists.answer(view.gameType, view.latestDateIndex + view.activeDate));
}

}  // namespace tessarine
