#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>

int main(int argc, char* argv[]) {
  QGuiApplication app(argc, argv);
  QGuiApplication::setOrganizationName("Tessarine");
  QGuiApplication::setApplicationName("Tessarine");
  QQuickStyle::setStyle("Basic");
  QQmlApplicationEngine engine;
  engine.load(QUrl(QStringLiteral("qrc:/Tessarine/qml/Main.qml")));
  if (engine.rootObjects().isEmpty()) return 1;
  return QGuiApplication::exec();
}
