#include "storage/bonus_record.h"

#include "catalogue/calendar.h"
#include "storage/settings_record.h"

namespace tessarine {

bool hasBonusRecord(const BonusDataManager& bonusDM) {
  return !bonusDM.getAllEntries().empty();
}

bool saveBonusRecord(BonusDataManager& bonusDM) {
  return bonusDM.saveEntry(kBonusRecord);
}

bool bonusCheck(ContentView& view, DataManagers& stores, const Clock& clock,
                const std::function<void()>& refreshBothFlagsFalse) {
  view.bonusEntries = stores.bonusDM.getAllEntries();
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
    view.ChristmasMessage +=
        "\n\nAn extra Christmas wish to the original Tessarine players, Marnie and Ansel.";
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
  view.ChristmasMessage += "\n\nAs a present from Tessarine, " + std::to_string(view.ChristmasDayBonusValue) +
                           " new available days have been added to your game. Your new earliest available "
                           "date is now " +
                           view.newMinimumDay + ", instead of your old date of " + view.oldMinimumDay + ".";
  return true;
}

}  // namespace tessarine
