// The yardstick for the app's start: an empty Qt Quick window of the same size, timed the same way.
// At its first frame it prints the wall-clock milliseconds and resident memory, then quits.
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

#include "first_frame_report.h"

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
        printFirstFrameReport();
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
      },
      Qt::SingleShotConnection);
  return QGuiApplication::exec();
}
