// The yardstick for the app's start: an empty Qt Quick window of the same size, timed the same way.
// At its first frame it prints the wall-clock milliseconds and resident memory, then quits.
#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>

namespace {

long residentKilobytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return -1;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
  }
  return -1;
}

}  // namespace

int main(int argc, char* argv[]) {
  QGuiApplication app(argc, argv);
  QQmlApplicationEngine engine;
  engine.loadData("import QtQuick\nWindow { width: 390; height: 844; visible: true; color: \"white\" }");
  auto* window =
      engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(engine.rootObjects()[0]);
  if (window == nullptr) return 1;
  QObject::connect(
      window, &QQuickWindow::frameSwapped, &app,
      [] {
        std::printf("first-frame-epoch-ms %lld\nresident-kB %ld\n", QDateTime::currentMSecsSinceEpoch(),
                    residentKilobytes());
        std::fflush(stdout);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
      },
      Qt::SingleShotConnection);
  return QGuiApplication::exec();
}
