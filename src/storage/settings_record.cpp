#include "storage/settings_record.h"

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
  const std::size_t length = symbolCount(record);
  if (length >= 9) return record;
  const std::string_view defaults = kDefaultFlags;
  return record + std::string(defaults.substr(length - 1));
}

Options parseOptionsRecord(const std::string& record) {
  const std::vector<std::string> symbols = splitSymbols(record);
  Options options;
  options.gameType = symbols[0];
  for (const OptionInfo& option : optionTable())
    options.*option.field = symbols[static_cast<std::size_t>(option.recordPosition)] == "Y";
  return options;
}

bool writeMinimumDay(SettingsDataManager& settingDM, int minimumDayIndex) {
  const std::vector<Entry> entries = settingDM.getAllEntries();
  return !entries.empty() && settingDM.updateEntry(entries.front(), paddedDayIndex(minimumDayIndex));
}

}  // namespace tessarine
