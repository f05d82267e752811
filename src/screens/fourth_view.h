// The sheet of the challenge's rules: fixed paragraphs, of which only the first follows the type.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/sheet_text.h"

namespace tessarine {

struct FourthView {
  // Fixed, so that a screen can show them without building the sheet.
  static constexpr std::string_view title = "Tessarine Challenge Rules";  // the same in both languages
  static constexpr std::string_view backSymbol = "chevron.left";
  static constexpr std::string_view bullet = "checkmark.square.fill";  // drawn before each rule
  std::vector<std::string> rules;                                      // in order of display
};

FourthView fourthView(std::string_view gameType, bool EnglishTranslation);

}  // namespace tessarine
