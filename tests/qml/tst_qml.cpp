// The Qt Quick tests run against a real session: a temporary data directory per test file, the
// lists of the source tree, a pinned day and a seeded random source.
#include <QQmlContext>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtQuickTest>
#include <memory>

#include "catalogue/calendar.h"
#include "catalogue/lists.h"
#include "game_bridge.h"
#include "session/session.h"

namespace {

// A Thursday in June, with no bonus day and no daylight-saving change near it.
constexpr tessarine::LocalDateTime kToday{2023, 6, 1, 12, 0, 0};

struct TestGame {
  QTemporaryDir dataDirectory;
  tessarine::DirectoryListSource source{TESSARINE_RESOURCES_DIR};
  tessarine::Lists lists{source};
  tessarine::FixedClock clock{kToday};
  tessarine::SplitMix64 random{20230601};
  std::unique_ptr<tessarine::Session> session;
  GameBridge bridge;

  TestGame() {
    session = std::make_unique<tessarine::Session>(dataDirectory.path().toStdString(), lists, clock, random);
    bridge.attach(session.get());
    bridge.launch();
  }
};

}  // namespace

class Setup : public QObject {
  Q_OBJECT

 public slots:
  // Each test file gets its own engine and a game that starts from empty stores.
  void qmlEngineAvailable(QQmlEngine* engine) {
    game_ = std::make_unique<TestGame>();
    engine->addImportPath(QStringLiteral("qrc:/"));
    const int day = tessarine::daysFromApril1st(game_->clock) - 1;
    engine->rootContext()->setContextProperty(QStringLiteral("game"), &game_->bridge);
    engine->rootContext()->setContextProperty(QStringLiteral("testAnswer"),
                                              QString::fromStdString(game_->lists.answer("C", day)));
  }

 private:
  std::unique_ptr<TestGame> game_;
};

QUICK_TEST_MAIN_WITH_SETUP(tessarine_qml, Setup)

#include "tst_qml.moc"
