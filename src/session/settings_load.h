// Reading the settings store into the session at launch, and writing the options back.
#pragma once

#include "catalogue/clock.h"
#include "session/content_view.h"
#include "storage/data_manager.h"

namespace tessarine {

// Sets `minimumDayIndex`, `gameType` and the options from the store, creating the records on a
// first run, mending a damaged store and lengthening records of older versions. Fills
// `settingEntries` (and `cellEntries` when it had to look for a returning player's days).
void loadSettings(ContentView& view, SettingsDataManager& settingDM, CoreDataManager& coreDM,
                  const Clock& clock);

// Rewrites the options record from the session. Without the two records loaded, prints a line and keeps
// the store as it is.
void saveOptions(const ContentView& view, SettingsDataManager& settingDM);

// Writes the drawing choices, adding their record on the first change.
void savePresentation(ContentView& view, SettingsDataManager& settingDM);

}  // namespace tessarine
