#include "statistics/fifth_view.h"

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

// How a packed key of each list holds its day and score.
enum class KeyShape { dayThenScore, scoreThenDay, scoreThenDaysBack };

struct ChosenList {
  const std::vector<int>* values = nullptr;
  KeyShape shape = KeyShape::dayThenScore;
};

ChosenList chosenList(const FifthView& view) {
  if (view.scoreAscendingFlag && view.dateAscendingFlag)
    return {&view.scoreAscendingAscending, KeyShape::scoreThenDay};
  if (view.scoreAscendingFlag) return {&view.scoreAscendingDescending, KeyShape::scoreThenDaysBack};
  if (view.scoreDescendingFlag && view.dateDescendingFlag)
    return {&view.scoreDescendingDescending, KeyShape::scoreThenDay};
  if (view.scoreDescendingFlag) return {&view.scoreDescendingAscending, KeyShape::scoreThenDaysBack};
  if (view.dateAscendingFlag) return {&view.dateAscending, KeyShape::dayThenScore};
  if (view.dateDescendingFlag) return {&view.dateDescending, KeyShape::dayThenScore};
  return {};
}

ListEntry decode(int value, KeyShape shape, int daysFromApril1st) {
  switch (shape) {
    case KeyShape::dayThenScore:
      return {value / 10, value % 10};
    case KeyShape::scoreThenDay:
      return {value % 10000, value / 10000};
    case KeyShape::scoreThenDaysBack: {
      const int score = value / 10000;
      const int relativeDay = score * 10000 - value;
      return {relativeDay + daysFromApril1st - 1, score};
    }
  }
  return {};
}

}  // namespace

FifthView makeFifthView(const SecondView& second, double screenWidth) {
  FifthView view;
  static_cast<ScoreLists&>(view) = second;
  view.daysFromApril1st = second.daysFromApril1st;
  view.gameType = second.gameType;
  view.EnglishTranslation = second.EnglishTranslation;
  view.thankYouFlag = second.thankYouFlag;
  view.fontSize = screenWidth * 0.08;
  view.symbolWidth = screenWidth * 0.1;
  return view;
}

std::string_view FifthView::sortMenuTitle() const {
  return EnglishTranslation ? "Sort Dates and Scores?" : "¿Ordenar fechas y puntajes?";
}

std::array<std::string_view, 5> FifthView::sortMenuButtons() const {
  if (EnglishTranslation)
    return {"Cancel", "Date ascending", "Date descending", "Score ascending", "Score descending"};
  return {"Cancelar", "Fecha ascendente", "Fecha descendente", "Puntuación ascendente",
          "Puntuación descendente"};
}

void FifthView::pressSort(SortChoice choice) {
  showAlert1 = false;
  switch (choice) {
    case SortChoice::cancel:
      break;
    case SortChoice::dateAscending:
    case SortChoice::dateDescending:
      dateAscendingFlag = choice == SortChoice::dateAscending;
      dateDescendingFlag = !dateAscendingFlag;
      scoreAscendingFlag = scoreDescendingFlag = false;
      break;
    case SortChoice::scoreAscending:
    case SortChoice::scoreDescending:
      scoreAscendingFlag = choice == SortChoice::scoreAscending;
      scoreDescendingFlag = !scoreAscendingFlag;
      break;
  }
}

std::string_view FifthView::dateFormatMenuTitle() const {
  return EnglishTranslation ? "Date Format?" : "¿Formato de fecha?";
}

std::string_view FifthView::dateFormatCancel() const {
  return EnglishTranslation ? "Cancel" : "Cancelar";
}

void FifthView::chooseDateFormat(std::string_view format) {
  showAlert2 = false;
  if (!format.empty()) dateFormat = std::string(format);
}

const std::vector<int>* FifthView::listInForce() const {
  return chosenList(*this).values;
}

std::vector<ListEntry> FifthView::entries() const {
  const ChosenList chosen = chosenList(*this);
  std::vector<ListEntry> result;
  if (chosen.values == nullptr) return result;
  result.reserve(chosen.values->size());
  for (const int value : *chosen.values)
    result.push_back(decode(value, chosen.shape, daysFromApril1st));
  return result;
}

std::string FifthView::dateOf(int day) const {
  if (thankYouFlag) return " ";
  return displayDateOf(addDays(CivilDate{}, day), EnglishTranslation);
}

std::vector<std::string> FifthView::lines() const {
  std::vector<std::string> result;
  for (const ListEntry& entry : entries())
    result.push_back(dateOf(entry.day) + " " +
                     std::string(scoreName(entry.score - 1, gameType, EnglishTranslation)));
  return result;
}

void FifthView::pressShare() {
  sharedResults = true;
  isShareSheetPresented = !isShareSheetPresented;
}

}  // namespace tessarine
