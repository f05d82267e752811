#include "alerts_model.h"

#include "core_text.h"
#include "session/session_texts.h"
#include "session_host.h"
#include "storage/bonus_record.h"

using tessarine::Session;

AlertsModel::AlertsModel(SessionHost& host) : QObject(&host), host_(host) {}

bool AlertsModel::showHintsAlert() const {
  return host_.view().showHintsAlert;
}
bool AlertsModel::showChristmasAlert() const {
  return host_.view().showAlert4;
}
QString AlertsModel::christmasMessage() const {
  return fromCore(host_.view().ChristmasMessage);
}
bool AlertsModel::thankYouFlag() const {
  return host_.view().thankYouFlag;
}
QString AlertsModel::thankYou() const {
  return fromCore(host_.view().thankYou);
}

QString AlertsModel::hintsAlertTitle() {
  return fromCore(tessarine::kHintsAlertTitle);
}
QString AlertsModel::hintsAlertConfirm() {
  return fromCore(tessarine::kHintsAlertConfirm);
}
QString AlertsModel::christmasAlertTitle() {
  return QString::fromUtf8(tessarine::kChristmasAlertTitle);
}
QString AlertsModel::christmasAlertButton() {
  return QString::fromUtf8(tessarine::kChristmasAlertButton);
}

void AlertsModel::confirmHint() {
  host_.run(&Session::confirmHint);
}
void AlertsModel::dismissHintsAlert() {
  host_.run(&Session::dismissHintsAlert);
}
void AlertsModel::dismissChristmasAlert() {
  host_.run(&Session::dismissChristmasAlert);
}
