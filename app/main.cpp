#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <cstdio>
#include <memory>

#include "app_environment.h"
#include "catalogue/fatal_error.h"
#include "catalogue/lists.h"
#include "device_random.h"
#include "qt_resource_list_source.h"
#include "screenshot.h"
#include "session/session.h"
#include "session_host.h"

namespace {

int failStart(const char* why) {
  std::fprintf(stderr, "Fatal error: Tessarine cannot start: %s.\n", why);
  return 1;
}

}  // namespace

// Builds the services, hands them to the session, and gives the QML the session host as the window's
// initial property.
int main(int argc, char* argv[]) {
  QGuiApplication app(argc, argv);
  QGuiApplication::setOrganizationName("Tessarine");
  QGuiApplication::setApplicationName("Tessarine");
  QGuiApplication::setDesktopFileName(QStringLiteral("org.tessarine.Tessarine"));
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
  // The QML module is built into the binary: look for it there, never beside the build tree.
  engine.addImportPath(QStringLiteral("qrc:/"));
  if (!QFile::exists(QStringLiteral(":/Tessarine/qmldir"))) return failStart("its QML module is missing");
  engine.setInitialProperties({{QStringLiteral("host"), QVariant::fromValue(&host)}});
  engine.load(QUrl(QStringLiteral("qrc:/Tessarine/qml/Main.qml")));
  if (engine.rootObjects().isEmpty()) return failStart("its screens did not load (the lines above say why)");
  if (auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst())) {
    runScriptedSession(*window, host);
  }
  return QGuiApplication::exec();
}
