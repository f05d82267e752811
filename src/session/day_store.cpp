#include "session/day_store.h"

#include <algorithm>

#include "catalogue/calendar.h"
#include "storage/day_record.h"

namespace tessarine {

std::string dayRecordOf(const ContentView& view, int dayIndex, int score, bool smartModeFlag) {
  return buildDayRecord(dayIndex, view.gameType, score, view.cellLetter, view, smartModeFlag);
}

std::optional<Entry> storeDay(ContentView& view, CoreDataManager& coreDM, const Clock& clock, int score,
                              bool flag) {
  if (score >= 1 && score <= kScoreSlots) view.scoreInt[score - 1] += 1;
  const int today = daysFromApril1st(clock) - 1;
  if (view.latestDateIndex != today && view.latestDateIndex >= 0) view.activeDate += view.latestDateIndex;
  return coreDM.saveEntry(dayRecordOf(view, std::max(0, today + view.activeDate), score, flag));
}

}  // namespace tessarine
