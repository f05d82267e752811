#include "session/settings_load.h"

#include <iostream>

#include "catalogue/calendar.h"
#include "catalogue/lists.h"
#include "storage/presentation.h"
#include "storage/record_text.h"
#include "storage/settings_record.h"

namespace tessarine {
namespace {

bool hasPresentationRecord(const std::vector<Entry>& entries) {
  return entries.size() >= 3 && isPresentationRecord(entries[1].text);
}

// First run, or a store that lost a record: start again from two fresh records.
void createSettings(ContentView& view, SettingsDataManager& settingDM, CoreDataManager& coreDM,
                    const Clock& clock) {
  const std::optional<std::vector<Entry>> days = coreDM.fetchEntries();
  if (!days) {
    // Whether this player has history is unknown: keep every day open for now and write nothing,
    // so that the next launch decides with the day records in hand.
    view.minimumDayIndex = 0;
    return;
  }
  if (view.settingEntries.size() == 1) settingDM.deleteEntry(view.settingEntries.front());
  view.cellEntries = *days;
  std::string minimumDay = "0000";
  if (view.cellEntries.empty()) {
    // A new player gets the last fifteen days; one with day records keeps them all open.
    const int days = daysFromApril1st(clock);
    view.minimumDayIndex = days < 15 ? 0 : days - 15;
    minimumDay = paddedDayIndex(view.minimumDayIndex);
    if (view.noMinimumDay && minimumDay != view.newMinimumDayValue) minimumDay = view.newMinimumDayValue;
  } else {
    view.minimumDayIndex = 0;
  }
  settingDM.saveEntry(minimumDay);
  // `gameType` is still "Ó" here and is stored so until the options are next saved.
  settingDM.saveEntry(optionsRecord(view));
  view.settingEntries = settingDM.getAllEntries();
}

void readSettings(ContentView& view, SettingsDataManager& settingDM) {
  const std::vector<Entry>& entries = view.settingEntries;
  bool wrote = false;
  view.minimumDayIndex = parseIntOr(trimView(entries[0].text), 0);
  if (view.noMinimumDay && entries[0].text != view.newMinimumDayValue) {
    view.minimumDayIndex = parseIntOr(view.newMinimumDayValue, 0);
    settingDM.updateEntry(entries[0], view.newMinimumDayValue);
    wrote = true;
  }
  const bool twoRecords = entries.size() == 2;
  // A second record of three is dropped, unless it holds the drawing choices.
  const bool presentation = hasPresentationRecord(entries);
  const Entry& optionsEntry = entries[twoRecords ? 1 : 2];
  std::string options(trimView(optionsEntry.text));
  if (options.empty()) options = view.gameType.empty() ? std::string("Ó") : view.gameType;
  const std::string full = lengthenedOptions(options);
  view.options() = parseOptionsRecord(full);
  // A damaged record is read with defaults but kept as it is, for the next save of the options.
  const bool damaged = full.rfind(view.gameType, 0) != 0;
  if (damaged) std::cout << "Unreadable game type in the options record: playing C" << std::endl;
  if ((twoRecords || presentation) && full != options && !damaged) {
    settingDM.updateEntry(optionsEntry, full);
    wrote = true;
  }
  if (presentation) {
    view.presentation = parsePresentationRecord(entries[1].text);
  } else if (!twoRecords) {
    settingDM.deleteEntry(entries[1]);
    wrote = true;
  }
  // The copy in hand is the store as just fetched unless something was written (or tried).
  if (wrote) view.settingEntries = settingDM.getAllEntries();
}

}  // namespace

void loadSettings(ContentView& view, SettingsDataManager& settingDM, CoreDataManager& coreDM,
                  const Clock& clock) {
  const std::optional<std::vector<Entry>> entries = settingDM.fetchEntries();
  if (!entries) {
    // A locked or unreadable store is not a first run: play on with the defaults, write nothing.
    view.settingEntries.clear();
    view.minimumDayIndex = 0;
  } else {
    view.settingEntries = *entries;
    if (view.settingEntries.size() < 2) {
      createSettings(view, settingDM, coreDM, clock);
    } else {
      readSettings(view, settingDM);
    }
  }
  if (view.gameType == "Ó") view.gameType = "C";
}

void saveOptions(const ContentView& view, SettingsDataManager& settingDM) {
  if (view.settingEntries.size() < 2) {
    std::cout << "Failed to save context the settings records are not loaded" << std::endl;
    return;
  }
  settingDM.updateEntry(view.settingEntries[hasPresentationRecord(view.settingEntries) ? 2 : 1],
                        optionsRecord(view));
}

void savePresentation(ContentView& view, SettingsDataManager& settingDM) {
  std::vector<Entry>& entries = view.settingEntries;
  if (hasPresentationRecord(entries)) {
    settingDM.updateEntry(entries[1], presentationRecord(view.presentation));
  } else if (entries.size() == 2) {
    // The options record moves behind the new one in the same commit, where older versions look.
    settingDM.replaceEntry(entries[1],
                           std::vector<std::string>{presentationRecord(view.presentation), entries[1].text});
  } else {
    std::cout << "Failed to save context the settings records are not loaded" << std::endl;
    return;
  }
  entries = settingDM.getAllEntries();
}

}  // namespace tessarine
