#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <memory>

#include "app_environment.h"
#include "catalogue/fatal_error.h"
#include "catalogue/lists.h"
#include "device_random.h"
#include "qt_resource_list_source.h"
#include "screenshot.h"
#include "session/session.h"
#include "session_host.h"

// Builds the services, hands them to the session, and gives the QML the session host as the window's initial
// property.
int main(int argc, char* argv[]) {
  QGuiApplication app(argc, argv);
  QGuiApplication::setOrganizationName("Tessarine");
  QGuiApplication::setApplicationName("Tessarine");
  QQuickStyle::setStyle("Basic");

  const AppEnvironment environment = readAppEnvironment();
  const QtResourceListSource listSource;
  const tessarine::Lists lists(listSource);
  DeviceRandom random;

  SessionHost host;
  std::unique_ptr<tessarine::Session> session;
  if (!environment.problem.isEmpty()) {
    host.fail(environment.problem);
  } else {
    try {
      session =
          std::make_unique<tessarine::Session>(environment.dataDirectory, lists, *environment.clock, random);
      host.attach(session.get());
    } catch (const tessarine::FatalError& error) {
      host.fail(QString::fromStdString(error.what()));
    }
  }
  host.launch();
  QObject::connect(&app, &QGuiApplication::applicationStateChanged, &host,
                   &SessionHost::onApplicationStateChanged);

  QQmlApplicationEngine engine;
  engine.setInitialProperties({{QStringLiteral("host"), QVariant::fromValue(&host)}});
  engine.load(QUrl(QStringLiteral("qrc:/Tessarine/qml/Main.qml")));
  if (engine.rootObjects().isEmpty()) return 1;
  if (auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst())) {
    runScriptedSession(*window, host);
  }
  return QGuiApplication::exec();
}
