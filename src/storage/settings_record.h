#pragma once

#include <string>

#include "catalogue/clock.h"
#include "session/content_view.h"
#include "storage/data_manager.h"

namespace tessarine {

// The settings store holds two records: 0 the earliest playable day in four digits, 1 the options,
// `gameType` followed by eight "Y"/"N" flags. Only "Y" reads as true.
constexpr const char* kDefaultFlags = "NNYYYNNY";

// Sets `minimumDayIndex`, `gameType` and the options from the store, creating the records on a
// first run, mending a damaged store and lengthening records of older versions. Fills
// `settingEntries` (and `cellEntries` when it had to look for a returning player's days).
void loadSettings(ContentView& view, SettingsDataManager& settingDM, CoreDataManager& coreDM,
                  const Clock& clock);

// `gameType` and the eight flags, e.g. "CNNYYYNNY".
std::string optionsRecord(const ContentView& view);

// Rewrites record 1 from the session. Without the two records loaded, prints a line and keeps
// the store as it is.
void saveOptions(const ContentView& view, SettingsDataManager& settingDM);

// Rewrites record 0; false when there is no record 0 or the write failed.
bool writeMinimumDay(SettingsDataManager& settingDM, int minimumDayIndex);

}  // namespace tessarine
