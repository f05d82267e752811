// The how-to-play sheet: its whole text for the chosen game type, in the player's language.
#pragma once

#include <string_view>
#include <vector>

#include "screens/sheet_text.h"

namespace tessarine {

struct ThirdView {
  static constexpr std::string_view backSymbol = "chevron.left";
  std::string_view title;  // thirdViewTitle
  // In order: the dictionary entry of the name, how to play, colour hint examples, game options,
  // Smart Mode error examples, game buttons, game symbols.
  std::vector<SheetSection> sections;
};

// `EnglishWords` is taken as the sheet receives it; every text follows the type and
// `EnglishTranslation`. A type outside the table gets the general English texts.
ThirdView thirdView(std::string_view gameType, bool EnglishTranslation, bool EnglishWords);

// "HOW TO PLAY" / "CÓMO JUGAR", for a screen that shows the title without the sheet.
std::string_view thirdViewTitle(bool EnglishTranslation);

}  // namespace tessarine
