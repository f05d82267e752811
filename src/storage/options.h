// The player's choices as one value: the game type and the eight options of the settings record.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tessarine {

struct Options {
  std::string gameType = "Ó";  // "Ó" until the settings record has been read
  bool smartMode = false;
  bool prepopulate = false;
  bool EnglishTranslation = true;
  bool showDefinitions = true;
  bool EnglishWords = true;
  bool wantHints = false;
  bool showStarStatus = false;
  bool useQWERTY = true;

  friend bool operator==(const Options&, const Options&) = default;
};

// One option: its name, its field, its character in the options record (the game type is
// character 0), and the label of its row on the options sheet. `EnglishWords` has no row: the
// language buttons set it.
struct OptionInfo {
  std::string_view name;
  bool Options::*field;
  int recordPosition;
  std::string_view english;
  std::string_view spanish;
};

// The eight options in record order.
std::span<const OptionInfo> optionTable();

// The option of that name, or nullptr.
const OptionInfo* findOption(std::string_view name);

}  // namespace tessarine
