// The sheet of the challenge's rules: fixed paragraphs, of which only the first follows the type.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/sheet_text.h"

namespace tessarine {

struct FourthView {
  std::string_view title;  // the same in both languages
  std::string_view backSymbol;
  std::string_view bullet;         // drawn before each rule
  std::vector<std::string> rules;  // in order of display
};

FourthView fourthView(std::string_view gameType, bool EnglishTranslation);

}  // namespace tessarine
