#pragma once

#include <string>
#include <string_view>

#include "catalogue/clock.h"
#include "catalogue/lists.h"
#include "session/christmas_texts.h"
#include "session/content_view.h"

namespace tessarine {

// The texts and symbol names of the main screen that follow from the session record, in the
// language of `EnglishTranslation` where the game has both.

inline constexpr std::string_view kHintsCountSuffix = " available HINTS.";
inline constexpr std::string_view kHintsAlertTitle = "Select your guess from available HINTS?";
inline constexpr std::string_view kHintsAlertConfirm = "Confirm:";
inline constexpr std::string_view kDateListButton = "Select Date";

// What the present adds to the Christmas message: the days opened, the earliest day after and before.
std::string christmasPresentText(int days, const std::string& newMinimumDay,
                                 const std::string& oldMinimumDay);

// A system symbol name and the named colour it is drawn in; an empty symbol draws nothing.
struct MarkSymbol {
  std::string_view symbol;
  std::string_view color;
  friend bool operator==(const MarkSymbol&, const MarkSymbol&) = default;
};

// The score name once the game is over, else empty.
std::string scoreLine(const ContentView& view);
// Beside the score: "graduationcap.fill" for a perfect game under par, "star.fill" for a perfect
// game, else nothing.
MarkSymbol scoreMark(const ContentView& view);
// Below "Picking up" on a lost game: the mystery itself, else empty.
std::string lostAnswerLine(const ContentView& view);
// "12 available HINTS." while the count line is up and the game goes on, else empty.
std::string hintsCountLine(const ContentView& view);
// Below the score when the game is over and `showDefinitions` is on: the answer's definition, or
// its English translation for the Spanish word games. Empty otherwise.
std::string definitionLine(const ContentView& view, const Lists& lists);
// The definition of the word that Hints entered, while `showHintDefinition` is on.
std::string hintDefinitionLine(const ContentView& view, const Lists& lists);

// The date bar: the shown day, and the text beside the latest-open-day button.
std::string shownDateText(const ContentView& view, const Clock& clock);
std::string latestOpenLabel(const ContentView& view);
std::string latestOpenValue(const ContentView& view, const Clock& clock);
std::string_view dateListTitle(const ContentView& view);

// The mark beside board row `row` when `showStarStatus` is on, and the family mark ahead of it.
MarkSymbol rowMark(const ContentView& view, int row);
MarkSymbol familyMark(const ContentView& view, int row);

}  // namespace tessarine
