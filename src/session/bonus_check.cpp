#include "session/bonus_check.h"

#include "catalogue/calendar.h"
#include "session/session_texts.h"
#include "storage/bonus_record.h"
#include "storage/settings_record.h"

namespace tessarine {

bool bonusCheck(ContentView& view, DataManagers& stores, const Clock& clock,
                const std::function<void()>& refreshBothFlagsFalse) {
  const std::optional<std::vector<Entry>> bonus = stores.bonusDM.fetchEntries();
  if (!bonus) return false;  // an unreadable store is not a missing record: no second present
  view.bonusEntries = *bonus;
  if (!view.bonusEntries.empty()) {
    if (view.removeBonusRecord) {
      stores.bonusDM.deleteEntry(view.bonusEntries.front());
      view.removeBonusRecord = false;
    }
    return false;
  }
  view.settingEntries = stores.settingDM.getAllEntries();
  if (view.settingEntries.size() < 2) return false;  // settings not set up yet

  view.showAlert4 = true;
  saveBonusRecord(stores.bonusDM);
  if (view.minimumDayIndex < 1) {
    view.ChristmasMessage += kChristmasOriginalPlayers;
    return true;
  }
  const auto dateOfMinimumDay = [&] {
    return displayDateString(clock, view.minimumDayIndex - view.latestDateIndex, view.thankYouFlag,
                             view.EnglishTranslation);
  };
  view.oldMinimumDay = dateOfMinimumDay();
  if (view.ChristmasDayBonusValue >= view.minimumDayIndex) {
    view.ChristmasDayBonusValue = view.minimumDayIndex;
    view.minimumDayIndex = 0;
  } else {
    view.minimumDayIndex -= view.ChristmasDayBonusValue;
  }
  view.newMinimumDay = dateOfMinimumDay();
  writeMinimumDay(stores.settingDM, view.minimumDayIndex);
  view.settingEntries = stores.settingDM.getAllEntries();
  refreshBothFlagsFalse();
  view.ChristmasMessage +=
      christmasPresentText(view.ChristmasDayBonusValue, view.newMinimumDay, view.oldMinimumDay);
  return true;
}

}  // namespace tessarine
