#include "storage/settings_record.h"

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "storage/record_text.h"

namespace tessarine {

std::string optionsRecord(const Options& options) {
  std::string record = options.gameType;
  for (const OptionInfo& option : optionTable())
    record += options.*option.field ? "Y" : "N";
  return record;
}

std::string lengthenedOptions(const std::string& record) {
  // Counted as the parser splits, so a stray continuation byte is a character here too.
  const std::size_t length = splitSymbols(record).size();
  if (length >= 9) return record;
  if (length == 0) return std::string("C") + kDefaultFlags;  // not even a game type survived
  const std::string_view defaults = kDefaultFlags;
  return record + std::string(defaults.substr(length - 1));
}

Options parseOptionsRecord(const std::string& record) {
  const std::vector<std::string> symbols = splitSymbols(lengthenedOptions(record));
  Options options;
  // A game type that does not read (a damaged byte, an unknown letter) is the default game.
  const std::string& gameType = symbols[0];
  const bool known = gameType == "Ó" || (isValidUtf8(gameType) && findGameType(gameType) != nullptr);
  options.gameType = known ? gameType : std::string("C");
  for (const OptionInfo& option : optionTable())
    options.*option.field = symbols[static_cast<std::size_t>(option.recordPosition)] == "Y";
  return options;
}

bool writeMinimumDay(SettingsDataManager& settingDM, int minimumDayIndex) {
  const std::vector<Entry> entries = settingDM.getAllEntries();
  return !entries.empty() && settingDM.updateEntry(entries.front(), paddedDayIndex(minimumDayIndex));
}

}  // namespace tessarine
