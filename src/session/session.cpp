#include "session/session.h"

#include "catalogue/calendar.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "session/bonus_check.h"
#include "session/day_store.h"
#include "session/game_setup.h"
#include "session/settings_load.h"
#include "storage/day_record.h"

namespace tessarine {

Session::Session(const std::filesystem::path& dataDirectory, const Lists& lists, const Clock& clock,
                 RandomSource& random, std::ostream& log, std::chrono::milliseconds busyTimeout)
    : stores_(dataDirectory, busyTimeout), lists_(lists), clock_(clock), random_(random), log_(log) {}

int Session::today() const {
  return daysFromApril1st(clock_) - 1;
}

void Session::launch() {
  if (view_.gameType != "Ó") return;
  padDayRecords(stores_.coreDM, log_);
  records_.invalidate();
  loadSettings(view_, stores_.settingDM, stores_.coreDM, clock_);
  applyCatalogue(view_);
  reloadDay(true, true);
}

bool Session::applyOptions(const Options& options) {
  if (options == view_.options()) return false;
  view_.options() = options;
  saveOptions(view_, stores_.settingDM);
  applyCatalogue(view_);
  view_.numberOfHints = -1;
  reloadDay(true, true);
  view_.updateSettings = false;
  return true;
}

bool Session::applyPresentation(const Presentation& presentation) {
  if (presentation == view_.presentation) return false;
  view_.presentation = presentation;
  savePresentation(view_, stores_.settingDM);
  return true;
}

void Session::computeHintsNow() {
  computeHints(view_, view_, view_, lists_, view_.gameType, view_.latestDateIndex + view_.activeDate);
}

void Session::refreshKnowledge() {
  view_.disableGreenButton = !updateKnowledge(view_, view_, view_);
}

void Session::changePhase(ScenePhase phase) {
  switch (phase) {
    case ScenePhase::active: {
      view_.thankYouFlag = false;
      view_.thankYou = " ";
      if (view_.gameType == "Ó") break;  // not launched yet: there is no day to keep
      const int daysNow = daysFromApril1st(clock_);
      // Midnight passed while away: stay on the day that was today when the player left.
      if (view_.latestDateIndex != daysNow - 1 && view_.latestDateIndex >= 0) {
        view_.disableCurrent = false;
        view_.disableFirst = false;
        view_.latestAvailableDate = 0;
        view_.activeDate = view_.latestDateIndex - daysNow + 1;
        reloadDay(true, true);
      }
      if (view_.latestDateIndex == view_.ChristmasDateIndex) {
        bonusCheck(view_, stores_, clock_, [this] { reloadDay(false, false); });
      }
      break;
    }
    case ScenePhase::inactive:
      view_.thankYouFlag = true;
      view_.thankYou = view_.EnglishTranslation ? "Thanks for playing" : "Gracias por jugar";
      break;
    case ScenePhase::background:
      break;
  }
}

bool Session::boardMatchesStore() {
  if (recordsRead_) return true;
  // The board was drawn from a stale copy (the store was locked): a record written now could
  // stand beside, and by the duplicate rule replace, a game the board does not show. Read again
  // instead; the player sees the stored game, or the line says why not.
  reloadDay(true, true);
  if (!recordsRead_) std::cout << "Failed to save day the day records could not be read" << std::endl;
  return false;
}

void Session::storeDay(int score, bool rejected) {
  if (!recordsRead_) return;
  if (const auto saved = tessarine::storeDay(view_, stores_.coreDM, clock_, score, rejected)) {
    records_.saved(*saved);
    shownRecords_.insert(saved->id);
  }
}

void Session::rewriteShownRecord(const DayRecord& record, int score) {
  if (!recordsRead_) return;
  // Delete and write in one step, so a failed write never loses the day.
  const int day = std::max(0, view_.latestDateIndex + view_.activeDate);
  if (const auto saved = stores_.coreDM.replaceEntry(record.entry, dayRecordOf(view_, day, score, false))) {
    records_.deleted(record.entry.id);
    records_.saved(*saved);
    shownRecords_.insert(saved->id);
  }
}

void Session::deleteRecord(const DayRecord& record) {
  if (!recordsRead_) return;
  if (stores_.coreDM.deleteEntry(record.entry)) records_.deleted(record.entry.id);
}

void Session::dismissChristmasAlert() {
  view_.showAlert4 = false;
}

std::string Session::displayDate(int offset) const {
  return displayDateString(clock_, offset, view_.thankYouFlag, view_.EnglishTranslation);
}

const std::vector<std::string>& Session::dateTexts() {
  const DateTextKey key{today(), view_.minimumDayIndex, view_.EnglishTranslation, view_.thankYouFlag};
  if (key == dateTextKey_) return dateTexts_;
  dateTexts_.clear();
  // Formatting every day anew on each refresh would cost more than the whole scan.
  for (int day = key.today, offset = 0; day >= std::max(key.minimumDay, 0); --day, --offset)
    dateTexts_.push_back(displayDate(offset));
  dateTextKey_ = key;
  return dateTexts_;
}

}  // namespace tessarine
