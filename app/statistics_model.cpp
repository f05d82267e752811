#include "statistics_model.h"

#include "session_host.h"
#include "statistics/statistics_share.h"
#include "statistics_values.h"

using tessarine::Session;

StatisticsModel::StatisticsModel(SessionHost& host) : QObject(&host), host_(host) {}

double StatisticsModel::screenWidth() const {
  return host_.mainScreen()->viewport().width();
}

void StatisticsModel::publish() {
  second_ = secondView_ ? secondValues(*secondView_) : QVariantMap();
  fifth_ = fifthView_ ? fifthValues(*fifthView_) : QVariantMap();
  sixth_ = sixthView_ ? sixthValues(*sixthView_) : QVariantMap();
  emit changed();
}

void StatisticsModel::openStatistics() {
  bool opened = false;
  host_.act([this, &opened](Session& s) {
    s.openStatistics();
    secondView_ = s.secondView(screenWidth());
    opened = true;
  });
  if (!opened) return;
  fifthView_.reset();
  sixthView_.reset();
  publish();
  emit secondOpened();
}

void StatisticsModel::openDistribution() {
  if (!secondView_) return;
  secondView_->openDistribution();
  sixthView_ = makeSixthView(*secondView_, screenWidth());
  sixthView_->appear();
  publish();
  emit sixthOpened();
}

void StatisticsModel::openList() {
  if (!secondView_ || !secondView_->openList()) return;
  fifthView_ = makeFifthView(*secondView_, screenWidth());
  publish();
  emit fifthOpened();
}

void StatisticsModel::pressSort(int button) {
  if (!fifthView_ || button < 0 || button > static_cast<int>(tessarine::SortChoice::scoreDescending)) return;
  fifthView_->openSortMenu();
  fifthView_->pressSort(static_cast<tessarine::SortChoice>(button));
  publish();
}

void StatisticsModel::chooseDateFormat(const QString& format) {
  if (!fifthView_) return;
  fifthView_->openDateFormatMenu();
  fifthView_->chooseDateFormat(format.toStdString());
  publish();
}

void StatisticsModel::shareStatistics() {
  if (!secondView_) return;
  secondView_->toggleShareSheet();
  host_.share(statisticsShareText(*secondView_));
}

void StatisticsModel::shareList() {
  if (!fifthView_) return;
  fifthView_->pressShare();
  if (const auto text = listShareText(*fifthView_)) host_.share(*text);
}

void StatisticsModel::sessionUpdated() {
  // Only the thank-you cover reaches an open copy: its dates go blank while the app is away.
  const tessarine::ContentView& view = host_.view();
  if (!secondView_ || secondView_->thankYouFlag == view.thankYouFlag || host_.session() == nullptr) return;
  const bool showingFifth = secondView_->showingFifthSheet;
  const bool showingSixth = secondView_->showingSixthSheet;
  secondView_ = host_.session()->secondView(screenWidth());
  secondView_->showingFifthSheet = showingFifth;
  secondView_->showingSixthSheet = showingSixth;
  if (fifthView_) fifthView_->thankYouFlag = view.thankYouFlag;
  publish();
}
