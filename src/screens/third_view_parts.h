// The sections of the how-to-play sheet, one builder each; private to the screens layer.
#pragma once

#include <optional>
#include <string>

#include "catalogue/catalogue.h"
#include "screens/sheet_text.h"

namespace tessarine::help {

// The text of the family of `info` ("L", "N" or "E"); for a type outside the table `fallback`,
// English only, or nothing where there is no general form.
inline std::optional<std::string> familyText(const FamilyTexts& texts, const GameTypeInfo* info,
                                             std::string_view fallback, bool english) {
  if (info == nullptr || info->typeOfGame.empty()) {
    if (fallback.empty()) return std::nullopt;
    return std::string(fallback);
  }
  const Bilingual& text = info->typeOfGame == "L"   ? texts.words
                          : info->typeOfGame == "N" ? texts.numbers
                                                    : texts.equations;
  return std::string(pick(text, english));
}

// The example rows of the colour hint and Smart Mode examples, by the example's place in its table.
std::vector<ExampleRow> colourHintTiles(std::size_t example, const GameTypeInfo* info, bool english);
std::vector<ExampleRow> smartModeTiles(std::size_t example, const GameTypeInfo* info, bool english);

SheetSection nameEntry(bool english);
SheetSection howToPlay(const GameTypeInfo* info, bool english);
SheetSection colourHintExamples(const GameTypeInfo* info, bool english);
SheetSection smartModeErrorExamples(const GameTypeInfo* info, bool english);
// The example sentences that the line under the board fills with the player's entry: the
// cyan (invalid) or purple (repeated) explanation, and a Smart Mode class in the order of
// `SmartModeClass`.
const FamilyTexts& refusedEntryText(bool repeated);
const FamilyTexts& smartModeErrorText(std::size_t check);
SheetSection gameOptions(const GameTypeInfo* info, bool english);
SheetSection gameButtons(const GameTypeInfo* info, bool english);
SheetSection gameSymbols(const GameTypeInfo* info, bool english);

}  // namespace tessarine::help
