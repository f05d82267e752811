#include "session/game_setup.h"

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/game_type.h"

namespace tessarine {

void applyCatalogue(ContentView& view) {
  const GameTypeInfo* info = findGameType(view.gameType);
  applyGameType(view, view, info);
  view.pickingUp = std::to_string(view.gameRows + 1);
  const OperatorSet operators = info != nullptr ? info->operators : OperatorSet::all;
  view.disablePlusKey = view.disableMinusKey = operators == OperatorSet::multiplyDivide;
  view.disableMultiplyKey = view.disableDivideKey = operators == OperatorSet::addSubtract;
}

bool operatorDisabled(const ContentView& view, std::string_view symbol) {
  return (symbol == "+" && view.disablePlusKey) || (symbol == "-" && view.disableMinusKey) ||
         (symbol == "X" && view.disableMultiplyKey) || (symbol == "/" && view.disableDivideKey);
}

Answer shownAnswer(const ContentView& view, const Lists& lists) {
  return Answer(lists.answer(view.gameType, view.latestDateIndex + view.activeDate));
}

}  // namespace tessarine
