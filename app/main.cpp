#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <cstdio>
#include <memory>
#include <thread>

#include "app_environment.h"
#include "core_start.h"
#include "font_configuration.h"
#include "heap_prefault.h"
#include "screenshot.h"
#include "session_host.h"
#include "start_steps.h"
#include "symbol_icons.h"

namespace {

int failStart(const char* why) {
  std::fprintf(stderr, "Fatal error: Tessarine cannot start: %s.\n", why);
  return 1;
}

}  // namespace

// Starts the core on its own thread, builds Qt's side and compiles the screens meanwhile, then
// gives the QML the session host as the window's initial property.
int main(int argc, char* argv[]) {
  markStartStep("main");
  // Before any other thread starts. 8 MB: what the heap holds at the first frame over empty stores.
  const std::jthread heap = prefaultHeap(std::size_t{8} << 20);
  // The names choose the stores' folder, so they come before anything reads the environment.
  QGuiApplication::setOrganizationName("Tessarine");
  QGuiApplication::setApplicationName("Tessarine");
  CoreStart core(readAppEnvironment());
  // Before anything asks fontconfig for a font, or it would read the system's configuration.
  const QString fontTrouble = useGameFontConfiguration();
  if (!fontTrouble.isEmpty())
    std::fprintf(stderr, "Tessarine uses the system's fonts: %s.\n", qPrintable(fontTrouble));

  QGuiApplication app(argc, argv);
  markStartStep("application");
  QGuiApplication::setDesktopFileName(QStringLiteral("org.tessarine.Tessarine"));

  // The font database and the icon font load on a thread of their own while the screens compile;
  // the first text laid out would otherwise wait for them.
  std::jthread fonts([] {
    SymbolIcons::fontFamily();
    QFontDatabase::families();
  });

  QQmlEngine engine;
  markStartStep("engine");
  // The QML module is built into the binary: look for it there, never beside the build tree.
  engine.addImportPath(QStringLiteral("qrc:/"));
  if (!QFile::exists(QStringLiteral(":/Tessarine/qmldir"))) return failStart("its QML module is missing");
  QQmlComponent screens(&engine, QUrl(QStringLiteral("qrc:/Tessarine/qml/Main.qml")));

  markStartStep("compiled");
  SessionHost host;
  core.handTo(host);
  markStartStep("core");
  QObject::connect(&app, &QGuiApplication::applicationStateChanged, &host,
                   &SessionHost::onApplicationStateChanged);
  std::unique_ptr<QObject> root(
      screens.createWithInitialProperties({{QStringLiteral("host"), QVariant::fromValue(&host)}}));
  markStartStep("created");
  auto* window = qobject_cast<QQuickWindow*>(root.get());
  if (window == nullptr) {
    std::fprintf(stderr, "%s\n", qPrintable(screens.errorString()));
    return failStart("its screens did not load (the lines above say why)");
  }
  QObject::connect(window, &QQuickWindow::frameSwapped, &host, &SessionHost::firstFrameShown,
                   static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
  runScriptedSession(*window, host);
  return QGuiApplication::exec();
}
