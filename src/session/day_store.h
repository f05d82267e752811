// Writing the shown day as a day record.
#pragma once

#include <optional>
#include <string>

#include "catalogue/clock.h"
#include "session/content_view.h"
#include "storage/data_manager.h"

namespace tessarine {

// The record of the shown board on `dayIndex`.
std::string dayRecordOf(const ContentView& view, int dayIndex, int score, bool smartModeFlag);

// Writes the shown day's record as a new record; an older one for the day stays for the refresh
// to remove. A guess sent after midnight without a scene change moves `activeDate` by the whole
// of `latestDateIndex`: that is how the game has always behaved, and the next scene change puts
// the day right again.
// Returns the saved record, or nothing when the store refused it.
std::optional<Entry> storeDay(ContentView& view, CoreDataManager& coreDM, const Clock& clock, int score,
                              bool flag);

}  // namespace tessarine
