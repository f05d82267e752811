#include "screenshot.h"

#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <memory>

#include "first_frame_report.h"
#include "input_timing.h"
#include "match_script.h"
#include "session_host.h"

namespace {

// "keys:WORD" goes through the window as real key presses, the way a desktop keyboard types;
// "keys:enter" and "keys:backspace" press those keys.
void pressKeys(QQuickWindow& window, const QString& keys) {
  const auto press = [&window](int key, const QString& text) { sendKey(window, key, text); };
  if (keys.toLower() == QStringLiteral("enter")) return press(Qt::Key_Return, QStringLiteral("\r"));
  if (keys.toLower() == QStringLiteral("backspace")) return press(Qt::Key_Backspace, QString());
  for (const QChar symbol : keys)
    press(symbol.toUpper().unicode(), QString(symbol));
}

// "options", "help", "rules" and "back" open and close the sheets as their buttons do; "scroll"
// shows the end of the sheet on top.
bool openSheet(QQuickWindow& window, const QString& step) {
  if (step.toLower() == QStringLiteral("scroll")) {
    // After the sheet has slid in and laid itself out.
    QTimer::singleShot(400, &window, [&window] {
      for (QQuickItem* item : window.findChildren<QQuickItem*>(QStringLiteral("sheetText"))) {
        const qreal end = item->property("contentHeight").toReal() - item->height();
        item->setProperty("contentY", std::max<qreal>(end, 0));
      }
    });
    return true;
  }
  static const QHash<QString, const char*> sheets = {{QStringLiteral("options"), "openOptions"},
                                                     {QStringLiteral("help"), "openHelp"},
                                                     {QStringLiteral("rules"), "openRules"},
                                                     {QStringLiteral("back"), "goBack"}};
  const auto function = sheets.constFind(step.toLower());
  if (function == sheets.constEnd()) return false;
  QObject* host = window.findChild<QObject*>(QStringLiteral("sheets"));
  return host != nullptr && QMetaObject::invokeMethod(host, function.value());
}

void replay(QQuickWindow& window, SessionHost& host, const QString& script) {
  for (const QString& step : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    if (openSheet(window, step)) continue;
    if (step.startsWith(QStringLiteral("keys:"))) {
      pressKeys(window, step.mid(5));
    } else if (!applyScriptStep(host, step)) {
      std::fprintf(stderr, "Unknown script step: %s\n", qPrintable(step));
    }
  }
}

}  // namespace

bool applyScriptStep(SessionHost& host, const QString& step) {
  using Action = void (*)(SessionHost&);
  static const QHash<QString, Action> buttons = {
      {QStringLiteral("enter"), [](SessionHost& b) { b.mainScreen()->submitGuess(); }},
      {QStringLiteral("backspace"), [](SessionHost& b) { b.mainScreen()->clearCell(); }},
      {QStringLiteral("clearrow"), [](SessionHost& b) { b.mainScreen()->clearRow(); }},
      {QStringLiteral("green"), [](SessionHost& b) { b.mainScreen()->moveCorrectLetters(); }},
      {QStringLiteral("hint"), [](SessionHost& b) { b.mainScreen()->pressHints(); }},
      {QStringLiteral("confirm"), [](SessionHost& b) { b.alerts()->confirmHint(); }},
      {QStringLiteral("today"), [](SessionHost& b) { b.dateBar()->goToToday(); }},
      {QStringLiteral("latest"), [](SessionHost& b) { b.dateBar()->goToLatestOpen(); }},
      {QStringLiteral("dates"), [](SessionHost& b) { b.dateBar()->openDateList(); }},
      {QStringLiteral("inactive"), [](SessionHost& b) { b.changePhase(tessarine::ScenePhase::inactive); }},
      {QStringLiteral("active"), [](SessionHost& b) { b.changePhase(tessarine::ScenePhase::active); }},
      {QStringLiteral("stats"), [](SessionHost& b) { b.statistics()->openStatistics(); }},
      {QStringLiteral("distribution"), [](SessionHost& b) { b.statistics()->openDistribution(); }},
      {QStringLiteral("list"), [](SessionHost& b) { b.statistics()->openList(); }},
      {QStringLiteral("share"), [](SessionHost& b) { b.mainScreen()->shareGame(); }},
      {QStringLiteral("sharestats"), [](SessionHost& b) { b.statistics()->shareStatistics(); }},
      {QStringLiteral("sharelist"), [](SessionHost& b) { b.statistics()->shareList(); }},
      {QStringLiteral("copy"), [](SessionHost& b) { b.shareSheet()->copy(); }},
      {QStringLiteral("colourblind"),
       [](SessionHost& b) {
         b.options()->open();
         b.options()->setColourBlind(!b.options()->colourBlind());
         b.options()->close();
       }},
  };
  if (step.startsWith(QStringLiteral("m:")) || step.startsWith(QStringLiteral("challenge")))
    return applyMatchStep(host, step);
  const QString lower = step.toLower();
  if (const auto button = buttons.constFind(lower); button != buttons.constEnd()) {
    button.value()(host);
  } else if (lower.startsWith(QStringLiteral("type:"))) {
    host.chooseGameType(step.mid(5));
  } else if (lower.startsWith(QStringLiteral("pick:"))) {
    host.dateBar()->pickDate(step.mid(5).toInt());
  } else if (lower.startsWith(QStringLiteral("sort:"))) {
    host.statistics()->pressSort(step.mid(5).toInt());
  } else if (lower.startsWith(QStringLiteral("cell:"))) {
    host.mainScreen()->touchCell(step.mid(5).toInt());
  } else {
    for (const QChar symbol : step) {
      if (!host.mainScreen()->typeText(QString(symbol))) return false;
    }
  }
  return true;
}

void runScriptedSession(QQuickWindow& window, SessionHost& host) {
  const QString shot = qEnvironmentVariable("TESSARINE_SCREENSHOT");
  const bool timing = qEnvironmentVariableIsSet("TESSARINE_FIRST_FRAME");
  if (qEnvironmentVariableIsSet("TESSARINE_INPUT_TIMING")) {
    QTimer::singleShot(300, &window, [&window, &host] { runInputTiming(window, host); });
    return;
  }
  if (shot.isEmpty() && !timing) return;
  // "WIDTHxHEIGHT": the window as a device of that size would show it.
  const QStringList size = qEnvironmentVariable("TESSARINE_WINDOW_SIZE").split(QLatin1Char('x'));
  if (size.size() == 2 && size[0].toInt() > 0 && size[1].toInt() > 0)
    window.resize(size[0].toInt(), size[1].toInt());
  auto once = std::make_shared<bool>(false);
  QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&window, &host, shot, timing, once] {
    if (*once) return;
    *once = true;
    if (timing) {
      printFirstFrameReport();
      if (shot.isEmpty()) {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return;
      }
    }
    replay(window, host, qEnvironmentVariable("TESSARINE_SCRIPT"));
    // Let the bindings settle, a sheet's slide end and a frame render before the grab.
    QTimer::singleShot(700, &window, [&window, shot] {
      const QImage image = window.grabWindow();
      const bool saved = image.save(shot);
      std::fprintf(stderr, "%s %s\n", saved ? "Saved" : "Could not save", qPrintable(shot));
      QCoreApplication::exit(saved ? 0 : 1);
    });
  });
}
