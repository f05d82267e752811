// The date bar: every action sets `activeDate` and refreshes; they differ in the day they pick.
#include "catalogue/calendar.h"
#include "session/session.h"

namespace tessarine {

void Session::goToToday() {
  view_.activeDate = 0;
  view_.numberOfHints = -1;
  reloadDay(true, true);
  view_.disableCurrent = true;
}

void Session::goToLatestOpen() {
  const int available = view_.latestAvailableDate;
  const int unfinished = view_.latestUnfinishedDate;
  // The later of the two days wins; a tie goes to the unplayed day.
  int picked = available != 1 && (unfinished >= 1 || available >= unfinished) ? available : unfinished;
  if (picked == 1) return;  // every open day is finished: there is no day to go to
  const int daysNow = daysFromApril1st(clock_);
  if (view_.latestDateIndex != daysNow - 1) picked += view_.latestDateIndex - daysNow + 1;
  view_.activeDate = picked;
  view_.numberOfHints = -1;
  reloadDay(true, true);
  view_.disableCurrent = view_.activeDate == 0;
}

void Session::goForward() {
  if (!view_.playFutureGames) return;
  view_.activeDate += 1;
  reloadDay(true, true);
}

void Session::openDateList() {
  view_.selectedDateIndex = -view_.activeDate;
  view_.selectingDate = true;
}

void Session::pickDate(int line) {
  if (line < 0 || line >= static_cast<int>(view_.allDatesInfo.size())) return;  // no such line
  view_.selectedDateIndex = line;
  view_.selectingDate = false;
  view_.activeDate = -view_.selectedDateIndex;
  if (view_.hintsGameDate != view_.activeDate - view_.latestDateIndex) view_.numberOfHints = -1;
  reloadDay(true, true);
  view_.disableCurrent = view_.activeDate == 0;
}

void Session::openStatistics() {
  reloadDay(true, true);
}

}  // namespace tessarine
