// The options sheet as a value: the player's choices bound as a copy, what each choice was when
// the sheet opened, and the actions of its buttons. Closing tells whether anything really changed.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "storage/options.h"

namespace tessarine {

// The Spanish word lengths in the order "V", "W", "X", "Y", "Z", "Ñ".
inline constexpr std::array<std::string_view, 6> kSpanishWordTypes = {"V", "W", "X", "Y", "Z", "Ñ"};

struct SeventhView {
  // Bindings to the session: the game type and the eight options, and the family of the type.
  Options bindings;
  std::string typeOfGame = "L";
  bool updateSettings = false;

  // What each binding held when the sheet opened, kept from its first change on.
  bool gameTypeChanged = false;
  std::string oldGameType;
  bool smartModeChanged = false;
  bool oldSmartMode = false;
  bool prepopulateChanged = false;
  bool oldPrepopulate = false;
  bool EnglishWordChanged = false;
  bool oldEnglishWords = false;
  bool EnglishTranslationChanged = false;
  bool oldEnglishTranslation = false;
  bool showDefinitionsChanged = false;
  bool oldShowDefinitions = false;
  bool wantHintsChanged = false;
  bool oldWantHints = false;
  bool showStarStatusChanged = false;
  bool oldShowStarStatus = false;
  bool useQWERTYChanged = false;
  bool oldUseQWERTY = false;

  // Only "W" and "X" have word lists; the other lengths are not offered.
  std::array<bool, 6> validSpanishLWordOption = {false, true, true, false, false, false};
};

// The sheet as it opens over the session's present choices.
SeventhView openSeventhView(const Options& options);

// The buttons. Each records the first value of what it changes, then writes the binding.
void selectGameType(SeventhView& view, std::string_view gameType);  // a type of the catalogue
void setOption(SeventhView& view, bool Options::*field, bool value);
void chooseEspanol(SeventhView& view);  // "Español"
void chooseEnglish(SeventhView& view);  // "English"

// The type the word group starts on: "A" with English words, else the first offered Spanish length.
std::string_view wordGroupType(const SeventhView& view);
// The Spanish type an English or genius type moves to on "Español": the same length when it is
// offered, else the longest offered length.
std::string_view spanishTypeFor(const SeventhView& view, std::string_view gameType);

// The back button: sets `updateSettings` when a binding ended up different from its first value,
// and then returns the choices for the session to apply; nothing when all is as it was.
std::optional<Options> closeSeventhView(SeventhView& view);

// Texts of the sheet in the language of the bindings.
std::string_view seventhViewTitle(bool EnglishTranslation);
std::string_view challengeHeading(bool EnglishTranslation);
// The row of the drawing choice that adds a mark to each scoring colour.
std::string_view colourBlindLabel(bool EnglishTranslation);

// One row per option, drawn "square.fill" when on and "square" when off. The challenge's row
// opens the match and holds no option: its `field` is null.
struct OptionRow {
  std::string_view name;
  std::string_view label;
  bool Options::*field;
  bool on;
  std::string_view symbol;
};
std::vector<OptionRow> optionRows(const SeventhView& view);

}  // namespace tessarine
