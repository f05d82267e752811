#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <functional>

#include "alerts_model.h"
#include "date_bar_model.h"
#include "help_model.h"
#include "main_screen_model.h"
#include "match_model.h"
#include "options_model.h"
#include "session/session.h"
#include "share_sink.h"
#include "statistics_model.h"

// The one owner of the app's view of the session. It runs every action, turns an error from the
// core into the fatal state (the message is shown, written to stderr, and every later action
// does nothing), and after each action emits `updated`, on which every screen model refreshes
// and emits its own change signal. QML gets the host as the window's initial property and each
// screen its model from it.
class SessionHost : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Created by main() around the session")
  Q_PROPERTY(QString fatalMessage READ fatalMessage NOTIFY updated)
  Q_PROPERTY(MainScreenModel* mainScreen READ mainScreen CONSTANT)
  Q_PROPERTY(DateBarModel* dateBar READ dateBar CONSTANT)
  Q_PROPERTY(AlertsModel* alerts READ alerts CONSTANT)
  Q_PROPERTY(StatisticsModel* statistics READ statistics CONSTANT)
  Q_PROPERTY(ClipboardShareSink* shareSheet READ shareSheet CONSTANT)
  Q_PROPERTY(MatchModel* match READ match CONSTANT)
  Q_PROPERTY(OptionsModel* options READ options CONSTANT)
  Q_PROPERTY(HelpModel* help READ help CONSTANT)

 public:
  explicit SessionHost(QObject* parent = nullptr);

  // Wires the host to a session built by main(); the host does not own it.
  void attach(tessarine::Session* session);
  // Enters the fatal state with `message` (also used when the session itself could not be built).
  void fail(const QString& message);

  QString fatalMessage() const { return fatalMessage_; }
  bool ready() const { return session_ != nullptr && fatalMessage_.isEmpty(); }
  // The session for reading; null before attach().
  const tessarine::Session* session() const { return session_; }
  // The record every model draws from; an empty one before attach().
  const tessarine::ContentView& view() const;

  MainScreenModel* mainScreen() { return &mainScreen_; }
  DateBarModel* dateBar() { return &dateBar_; }
  AlertsModel* alerts() { return &alerts_; }
  StatisticsModel* statistics() { return &statistics_; }
  ClipboardShareSink* shareSheet() { return &shareSheet_; }

  // Every text that leaves the program goes out here. The app's own sheet is the sink unless
  // main() hands in a platform's; the host does not own it.
  void setShareSink(ShareSink* sink) { sink_ = sink != nullptr ? sink : &shareSheet_; }
  void share(const std::string& text);
  MatchModel* match() { return &match_; }
  OptionsModel* options() { return &options_; }
  HelpModel* help() { return &help_; }

  // Runs an action on the session unless the host is fatal, catches what the core throws, then
  // emits `updated`.
  void act(const std::function<void(tessarine::Session&)>& action);
  void run(void (tessarine::Session::*action)());

  void launch() { run(&tessarine::Session::launch); }
  void changePhase(tessarine::ScenePhase phase);
  // Chooses a game type as the options screen does (scripted screenshots and tests use it).
  Q_INVOKABLE void chooseGameType(const QString& gameType);

 public slots:
  void onApplicationStateChanged(Qt::ApplicationState state);

 signals:
  void updated();
  // Once, when the window has shown its first frame: work that can wait for it starts here.
  void firstFrameShown();

 private:
  tessarine::Session* session_ = nullptr;
  QString fatalMessage_;
  MainScreenModel mainScreen_;
  DateBarModel dateBar_;
  AlertsModel alerts_;
  StatisticsModel statistics_;
  ClipboardShareSink shareSheet_;
  ShareSink* sink_ = &shareSheet_;
  MatchModel match_;
  OptionsModel options_;
  HelpModel help_;
};
