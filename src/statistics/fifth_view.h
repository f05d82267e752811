// The dates and scores screen: the finished games in one of six orders, chosen through a sort menu
// of four flags, and a date format menu whose choice is kept and read by nothing.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "statistics/second_view.h"

namespace tessarine {

enum class SortChoice { cancel, dateAscending, dateDescending, scoreAscending, scoreDescending };

// One finished game of a list: its day index and its score.
struct ListEntry {
  int day = 0;
  int score = 0;
  friend bool operator==(const ListEntry&, const ListEntry&) = default;
};

inline constexpr std::array<std::string_view, 7> kDateFormats = {
    "MMMM d, yyyy", "MMM d, yyyy", "MM/dd/yy", "MM/dd/yyyy", "dd/MM/yy", "dd/MM/yyyy", "yyyy/MM/dd"};

struct FifthView : ScoreLists {
  bool isShareSheetPresented = false;
  int daysFromApril1st = 0;
  std::string gameType;
  bool EnglishTranslation = true;
  bool thankYouFlag = false;

  bool showAlert1 = false;  // sort menu open
  bool showAlert2 = false;  // date format menu open
  int dateScoreIndex = 0;
  std::string dateFormat = "MMMM d, yyyy";
  double fontSize = 0, symbolWidth = 0;

  bool dateAscendingFlag = false;
  bool dateDescendingFlag = true;
  bool scoreAscendingFlag = false;
  bool scoreDescendingFlag = false;
  bool sharedResults = false;

  // Stays English in the Spanish interface too.
  static constexpr std::string_view title = "Dates and Scores";
  static constexpr ButtonLook sortButton{"arrow.up.arrow.down.square"};
  static constexpr ButtonLook dateFormatButton{"calendar"};

  // Sort menu: its title, and its buttons in the order of SortChoice, the cancel button first.
  void openSortMenu() { showAlert1 = true; }
  std::string_view sortMenuTitle() const;
  std::array<std::string_view, 5> sortMenuButtons() const;
  // A date order clears the score flags; a score order leaves the date flag, which then picks the
  // tie-break among equal scores.
  void pressSort(SortChoice choice);

  // Date format menu: the cancel button, then the seven formats of kDateFormats.
  void openDateFormatMenu() { showAlert2 = true; }
  std::string_view dateFormatMenuTitle() const;
  std::string_view dateFormatCancel() const;
  void chooseDateFormat(std::string_view format);  // an empty format is the cancel button
  void cancelDateFormat() { showAlert2 = false; }

  // The list that the flags pick; nullptr when no flag is set.
  const std::vector<int>* listInForce() const;
  std::vector<ListEntry> entries() const;
  // "April 3, 2022 Birdie": the fixed date pattern of the language, whatever `dateFormat` holds.
  std::vector<std::string> lines() const;

  // Marks the results as shared and flips the sheet.
  void pressShare();

  std::string dateOf(int day) const;
};

FifthView makeFifthView(const SecondView& second, double screenWidth = kDefaultScreenWidth);

}  // namespace tessarine
