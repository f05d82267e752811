#include "date_bar_model.h"

#include "core_text.h"
#include "session/session_texts.h"
#include "session_host.h"

using tessarine::Session;

DateBarModel::DateBarModel(SessionHost& host) : QObject(&host), host_(host) {}

QString DateBarModel::shownDate() const {
  if (host_.session() == nullptr) return {};
  return fromCore(tessarine::shownDateText(host_.view(), host_.session()->clock()));
}

QString DateBarModel::latestLabel() const {
  return fromCore(tessarine::latestOpenLabel(host_.view()));
}

QString DateBarModel::latestValue() const {
  if (host_.session() == nullptr) return {};
  return fromCore(tessarine::latestOpenValue(host_.view(), host_.session()->clock()));
}

bool DateBarModel::currentEnabled() const {
  return !host_.view().disableCurrent;
}
bool DateBarModel::latestEnabled() const {
  return !host_.view().disableFirst;
}
bool DateBarModel::playFutureGames() const {
  return host_.view().playFutureGames;
}

QStringList DateBarModel::allDatesInfo() const {
  return fromCoreList(host_.view().allDatesInfo);
}

int DateBarModel::selectedDateIndex() const {
  return host_.view().selectedDateIndex;
}
bool DateBarModel::selectingDate() const {
  return host_.view().selectingDate;
}

QString DateBarModel::dateListTitle() const {
  return fromCore(tessarine::dateListTitle(host_.view()));
}
QString DateBarModel::dateListButton() {
  return fromCore(tessarine::kDateListButton);
}

void DateBarModel::openDateList() {
  host_.run(&Session::openDateList);
}
void DateBarModel::goToToday() {
  host_.run(&Session::goToToday);
}
void DateBarModel::goToLatestOpen() {
  host_.run(&Session::goToLatestOpen);
}
void DateBarModel::goForward() {
  host_.run(&Session::goForward);
}
void DateBarModel::pickDate(int line) {
  host_.act([line](Session& s) { s.pickDate(line); });
}
