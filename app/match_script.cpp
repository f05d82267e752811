#include "match_script.h"

#include <QHash>

#include "session_host.h"

bool applyMatchStep(SessionHost& host, const QString& step) {
  MatchModel& match = *host.match();
  using Action = void (*)(MatchModel&);
  static const QHash<QString, Action> buttons = {
      {QStringLiteral("challenge"), [](MatchModel& m) { m.requestScreen(QStringLiteral("challenge")); }},
      {QStringLiteral("challengestats"),
       [](MatchModel& m) { m.requestScreen(QStringLiteral("statistics")); }},
      {QStringLiteral("m:accept"), [](MatchModel& m) { m.accept(); }},
      {QStringLiteral("m:submit"), [](MatchModel& m) { m.submit(); }},
      {QStringLiteral("m:walk"), [](MatchModel& m) { m.toggleWalk(); }},
      {QStringLiteral("m:undo"), [](MatchModel& m) { m.undo(); }},
      {QStringLiteral("m:send"), [](MatchModel& m) { m.send(); }},
      {QStringLiteral("m:clearrow"), [](MatchModel& m) { m.clearRow(); }},
  };
  if (const auto button = buttons.constFind(step.toLower()); button != buttons.constEnd()) {
    button.value()(match);
    return true;
  }
  if (step.startsWith(QStringLiteral("m:type:"))) {
    for (const QChar symbol : step.mid(7)) {
      if (!match.typeText(QString(symbol))) return false;
    }
    return true;
  }
  if (step.startsWith(QStringLiteral("m:choose:"))) {
    match.choose(step.mid(9).toInt());
    return true;
  }
  if (step.startsWith(QStringLiteral("m:save:"))) return match.save(step.mid(7));
  return false;
}
