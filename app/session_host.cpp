#include "session_host.h"

#include <cstdio>

#include "core_text.h"
#include "session_options.h"

using tessarine::Session;

SessionHost::SessionHost(QObject* parent)
    : QObject(parent),
      mainScreen_(*this),
      dateBar_(*this),
      alerts_(*this),
      statistics_(*this),
      match_(*this),
      options_(*this),
      help_(options_, this) {
  connect(this, &SessionHost::updated, &mainScreen_, &MainScreenModel::refresh);
  connect(this, &SessionHost::updated, &dateBar_, &DateBarModel::changed);
  connect(this, &SessionHost::updated, &alerts_, &AlertsModel::changed);
  connect(this, &SessionHost::updated, &statistics_, &StatisticsModel::sessionUpdated);
  connect(this, &SessionHost::updated, &match_, &MatchModel::refresh);
  connect(this, &SessionHost::updated, &options_, &OptionsModel::changed);
  connect(this, &SessionHost::updated, &shareSheet_,
          [this] { shareSheet_.setEnglish(view().EnglishTranslation); });
}

void SessionHost::attach(Session* session) {
  session_ = session;
  emit updated();
}

void SessionHost::fail(const QString& message) {
  if (!fatalMessage_.isEmpty()) return;
  fatalMessage_ = message.isEmpty() ? QStringLiteral("Unknown error") : message;
  std::fprintf(stderr, "Fatal error: %s\n", fatalMessage_.toLocal8Bit().constData());
  std::fflush(stderr);
  emit updated();
}

const tessarine::ContentView& SessionHost::view() const {
  static const tessarine::ContentView empty;
  return session_ != nullptr ? session_->view() : empty;
}

void SessionHost::act(const std::function<void(Session&)>& action) {
  if (!ready()) return;
  try {
    action(*session_);
  } catch (const std::exception& error) {
    // Anything the core cannot play on from stops here, on the fatal screen, not in a crash.
    fail(QString::fromStdString(error.what()));
    return;
  }
  emit updated();
}

void SessionHost::run(void (Session::*action)()) {
  act([action](Session& s) { (s.*action)(); });
}

void SessionHost::share(const std::string& text) {
  if (!ready()) return;
  sink_->share(fromCore(text));
}

void SessionHost::changePhase(tessarine::ScenePhase phase) {
  act([phase](Session& s) { s.changePhase(phase); });
}

void SessionHost::chooseGameType(const QString& gameType) {
  const std::string type = gameType.toStdString();
  act([&type](Session& s) { applyGameType(s, type); });
}

void SessionHost::onApplicationStateChanged(Qt::ApplicationState state) {
  switch (state) {
    case Qt::ApplicationActive:
      changePhase(tessarine::ScenePhase::active);
      break;
    case Qt::ApplicationInactive:
      changePhase(tessarine::ScenePhase::inactive);
      break;
    case Qt::ApplicationHidden:
    case Qt::ApplicationSuspended:
      changePhase(tessarine::ScenePhase::background);
      break;
  }
}
