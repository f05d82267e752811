#include "session/session_texts.h"

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"
#include "engine/scoring.h"
#include "engine/smart_mode.h"
#include "statistics/statistics_texts.h"

namespace tessarine {
namespace {

bool gameWon(const ContentView& view) {
  return !view.showKeypad && view.activeRow < view.gameRows;
}

std::string definitionOf(const ContentView& view, const Lists& lists, const std::string& word) {
  const GameTypeInfo* info = findGameType(view.gameType);
  if (info != nullptr && !info->translationFile.empty()) return lists.translation(view.gameType, word);
  if (info == nullptr || info->typeOfGame != "L" || info->validityFile.empty()) return {};
  return lists.definition(std::string(info->validityFile), word);
}

}  // namespace

std::string christmasPresentText(int days, const std::string& newMinimumDay,
                                 const std::string& oldMinimumDay) {
  return "\n\nAs a present from Tessarine, " + std::to_string(days) +
         " new available days have been added to your game. Your new earliest available date is now " +
         newMinimumDay + ", instead of your old date of " + oldMinimumDay + ".";
}

std::string scoreLine(const ContentView& view) {
  if (view.showKeypad) return {};
  return std::string(scoreName(view.activeRow, view.gameType, view.EnglishTranslation));
}

MarkSymbol scoreMark(const ContentView& view) {
  if (view.showKeypad || !isPerfectGame(view, view.activeRow, view.gameRows)) return {};
  const GameTypeInfo* info = findGameType(view.gameType);
  const int score = gameWon(view) ? view.activeRow + 1 : view.gameRows + 1;
  if (info != nullptr && score < info->par) return {"graduationcap.fill", "currentMode"};
  return {"star.fill", "yellow"};
}

std::string lostAnswerLine(const ContentView& view) {
  if (view.showKeypad || gameWon(view)) return {};
  return view.answer.text;
}

std::string hintsCountLine(const ContentView& view) {
  if (!view.displayHintsNumbers || !view.showKeypad) return {};
  return std::to_string(view.numberOfAvailableHints) + std::string(kHintsCountSuffix);
}

std::string definitionLine(const ContentView& view, const Lists& lists) {
  if (view.showKeypad || !view.showDefinitions) return {};
  return definitionOf(view, lists, view.answer.text);
}

std::string hintDefinitionLine(const ContentView& view, const Lists& lists) {
  if (!view.showHintDefinition) return {};
  return definitionOf(view, lists, rowWord(view, view.activeRow));
}

std::string shownDateText(const ContentView& view, const Clock& clock) {
  return displayDateString(clock, view.activeDate, view.thankYouFlag, view.EnglishTranslation);
}

std::string latestOpenLabel(const ContentView& view) {
  return unfinishedTitle(view, view.statisticsScope());
}

std::string latestOpenValue(const ContentView& view, const Clock& clock) {
  return unfinishedDate(view, view.statisticsScope(), clock);
}

std::string_view dateListTitle(const ContentView& view) {
  return view.EnglishTranslation ? "Select Date:" : "Seleccione fecha";
}

MarkSymbol rowMark(const ContentView& view, int row) {
  if (row >= 1 && row <= kMarkedRows) {
    const int mark = row - 1;
    if (view.singleHint[mark]) return {"exclamationmark.questionmark", "red"};
    if (view.usedHints[mark]) return {"questionmark", "red"};
    if (view.smartModeError[mark]) return {"exclamationmark.2", "red"};
    if (view.validGuessError[mark]) return {"exclamationmark.triangle.fill", "yellow"};
    if (view.smartModeCorrect[mark]) return {"star.fill", "yellow"};
  }
  const bool accepted = row < view.activeRow || (gameWon(view) && row == view.activeRow);
  if (accepted) return {"multiply", "red"};
  return {"questionmark.circle", "blue"};
}

MarkSymbol familyMark(const ContentView& view, int row) {
  const GameTypeInfo* info = findGameType(view.gameType);
  if (info == nullptr) return {};
  if (info->kind == GameKind::geniusWords)
    return {row == 0 ? "graduationcap.fill" : "graduationcap.blank", "currentMode"};
  if (info->kind == GameKind::primeNumbers)
    return {row == 0 ? "parkingsign.circle" : "parkingsign.blank", "currentMode"};
  return {};
}

}  // namespace tessarine
