// The Qt Quick tests run against a real session: a temporary data directory per test file, the
// lists of the source tree, a pinned day and a seeded random source. The QML reaches the session
// host and today's answer through the TestSession singleton.
#include <QClipboard>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QtQuickTest>
#include <memory>

#include "catalogue/calendar.h"
#include "catalogue/lists.h"
#include "session/session.h"
#include "session_host.h"

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
  SessionHost host;

  TestGame() { start(); }

  // A new session over the same stores, as the next launch of the app would be.
  void start() {
    auto next =
        std::make_unique<tessarine::Session>(dataDirectory.path().toStdString(), lists, clock, random);
    host.attach(next.get());
    session = std::move(next);
    host.launch();
  }
};

}  // namespace

class TestSession : public QObject {
  Q_OBJECT
  Q_PROPERTY(SessionHost* host READ host CONSTANT)
  Q_PROPERTY(QString answer READ answer CONSTANT)

 public:
  explicit TestSession(TestGame& game) : game_(game) {}
  SessionHost* host() { return &game_.host; }
  Q_INVOKABLE void restart() { game_.start(); }
  // Today's answer of "C", the first game.
  QString answer() const {
    const int day = tessarine::daysFromApril1st(game_.clock) - 1;
    return QString::fromStdString(game_.lists.answer("C", day));
  }
  // What a paste elsewhere would receive.
  Q_INVOKABLE static QString clipboardText() { return QGuiApplication::clipboard()->text(); }

 private:
  TestGame& game_;
};

class Setup : public QObject {
  Q_OBJECT

 public slots:
  // Each test file gets its own engine and a game that starts from empty stores.
  void qmlEngineAvailable(QQmlEngine* engine) {
    session_.reset();
    game_ = std::make_unique<TestGame>();
    session_ = std::make_unique<TestSession>(*game_);
    engine->addImportPath(QStringLiteral("qrc:/"));
    static bool registered = false;
    if (!registered) {
      registered = true;
      qmlRegisterSingletonType<TestSession>(
          "TessarineTest", 1, 0, "TestSession", [this](QQmlEngine*, QJSEngine*) -> QObject* {
            QQmlEngine::setObjectOwnership(session_.get(), QQmlEngine::CppOwnership);
            return session_.get();
          });
    }
  }

 private:
  std::unique_ptr<TestGame> game_;
  std::unique_ptr<TestSession> session_;
};

QUICK_TEST_MAIN_WITH_SETUP(tessarine_qml, Setup)

#include "tst_qml.moc"
