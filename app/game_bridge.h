#pragma once

#include <QtQml/qqmlregistration.h>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <functional>

#include "session/session.h"

// The main screen's view of the session: read-only properties and the player's actions. Every
// action ends in the session's refresh, so one `changed` signal re-evaluates every binding.
// A FatalError from the core puts the bridge in its fatal state: the message is shown, written to
// stderr, and every later action does nothing.
class GameBridge : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Created by main() around the session")

  Q_PROPERTY(QString fatalMessage READ fatalMessage NOTIFY changed)
  Q_PROPERTY(bool ready READ ready NOTIFY changed)
  // Board.
  Q_PROPERTY(QString gameType READ gameType NOTIFY changed)
  Q_PROPERTY(QString typeOfGame READ typeOfGame NOTIFY changed)
  Q_PROPERTY(int gameLetters READ gameLetters NOTIFY changed)
  Q_PROPERTY(int gameRows READ gameRows NOTIFY changed)
  Q_PROPERTY(int activeRow READ activeRow NOTIFY changed)
  Q_PROPERTY(int currentPosition READ currentPosition NOTIFY changed)
  Q_PROPERTY(QStringList cellLetters READ cellLetters NOTIFY changed)
  Q_PROPERTY(QStringList cellColors READ cellColors NOTIFY changed)
  Q_PROPERTY(QList<qreal> cellBorders READ cellBorders NOTIFY changed)
  Q_PROPERTY(QStringList rowMarks READ rowMarks NOTIFY changed)
  Q_PROPERTY(QStringList rowMarkColors READ rowMarkColors NOTIFY changed)
  Q_PROPERTY(QStringList familyMarks READ familyMarks NOTIFY changed)
  // Keypad and buttons.
  Q_PROPERTY(bool showKeypad READ showKeypad NOTIFY changed)
  Q_PROPERTY(QStringList keyLabels READ keyLabels NOTIFY changed)
  Q_PROPERTY(QStringList keyColors READ keyColors NOTIFY changed)
  Q_PROPERTY(QList<bool> keysLive READ keysLive NOTIFY changed)
  Q_PROPERTY(QVariantList keyRows READ keyRows NOTIFY changed)
  Q_PROPERTY(bool submitEnabled READ submitEnabled NOTIFY changed)
  Q_PROPERTY(bool greenButtonEnabled READ greenButtonEnabled NOTIFY changed)
  Q_PROPERTY(bool hintsEnabled READ hintsEnabled NOTIFY changed)
  Q_PROPERTY(bool hasHintsButton READ hasHintsButton NOTIFY changed)
  // Sizes, from the screen the QML reports in `viewport`.
  Q_PROPERTY(QSizeF viewport READ viewport WRITE setViewport NOTIFY changed)
  Q_PROPERTY(qreal cellWidth READ cellWidth NOTIFY changed)
  Q_PROPERTY(qreal keypadWidth READ keypadWidth NOTIFY changed)
  // Dates.
  Q_PROPERTY(QString shownDate READ shownDate NOTIFY changed)
  Q_PROPERTY(QString latestLabel READ latestLabel NOTIFY changed)
  Q_PROPERTY(QString latestValue READ latestValue NOTIFY changed)
  Q_PROPERTY(bool disableCurrent READ disableCurrent NOTIFY changed)
  Q_PROPERTY(bool disableFirst READ disableFirst NOTIFY changed)
  Q_PROPERTY(bool playFutureGames READ playFutureGames NOTIFY changed)
  Q_PROPERTY(QStringList allDatesInfo READ allDatesInfo NOTIFY changed)
  Q_PROPERTY(int selectedDateIndex READ selectedDateIndex NOTIFY changed)
  Q_PROPERTY(bool selectingDate READ selectingDate NOTIFY changed)
  Q_PROPERTY(QString dateListTitle READ dateListTitle NOTIFY changed)
  // Hints, score and texts below the board.
  Q_PROPERTY(QString hintsLine READ hintsLine NOTIFY changed)
  Q_PROPERTY(bool showHintsAlert READ showHintsAlert NOTIFY changed)
  Q_PROPERTY(QString scoreLine READ scoreLine NOTIFY changed)
  Q_PROPERTY(QString scoreMark READ scoreMark NOTIFY changed)
  Q_PROPERTY(QString scoreMarkColor READ scoreMarkColor NOTIFY changed)
  Q_PROPERTY(QString definitionLine READ definitionLine NOTIFY changed)
  Q_PROPERTY(QString hintDefinitionLine READ hintDefinitionLine NOTIFY changed)
  // Cover and alerts.
  Q_PROPERTY(bool thankYouFlag READ thankYouFlag NOTIFY changed)
  Q_PROPERTY(QString thankYou READ thankYou NOTIFY changed)
  Q_PROPERTY(bool showChristmasAlert READ showChristmasAlert NOTIFY changed)
  Q_PROPERTY(QString christmasMessage READ christmasMessage NOTIFY changed)
  // The fixed texts of the alerts and the date list, from the core.
  Q_PROPERTY(QString hintsAlertTitle READ hintsAlertTitle CONSTANT)
  Q_PROPERTY(QString hintsAlertConfirm READ hintsAlertConfirm CONSTANT)
  Q_PROPERTY(QString dateListButton READ dateListButton CONSTANT)
  Q_PROPERTY(QString christmasAlertTitle READ christmasAlertTitle CONSTANT)
  Q_PROPERTY(QString christmasAlertButton READ christmasAlertButton CONSTANT)

 public:
  explicit GameBridge(QObject* parent = nullptr) : QObject(parent) {}

  // Wires the bridge to a session built by main(); the bridge does not own it.
  void attach(tessarine::Session* session) { session_ = session; }
  // Enters the fatal state with `message` (used when the session itself could not be built).
  void fail(const QString& message);

  QString fatalMessage() const { return fatalMessage_; }
  bool ready() const { return session_ != nullptr && fatalMessage_.isEmpty(); }

  QString gameType() const;
  QString typeOfGame() const;
  int gameLetters() const { return view().gameLetters; }
  int gameRows() const { return view().gameRows; }
  int activeRow() const { return view().activeRow; }
  int currentPosition() const { return view().currentPosition; }
  QStringList cellLetters() const;
  QStringList cellColors() const;
  QList<qreal> cellBorders() const;
  QStringList rowMarks() const;
  QStringList rowMarkColors() const;
  QStringList familyMarks() const;

  bool showKeypad() const { return view().showKeypad; }
  QStringList keyLabels() const;
  QStringList keyColors() const;
  QList<bool> keysLive() const;
  QVariantList keyRows() const;
  bool submitEnabled() const { return !view().disableSubmit; }
  bool greenButtonEnabled() const { return !view().disableGreenButton; }
  bool hintsEnabled() const;
  bool hasHintsButton() const;

  QSizeF viewport() const { return viewport_; }
  void setViewport(const QSizeF& size);
  qreal cellWidth() const;
  qreal keypadWidth() const;

  QString shownDate() const;
  QString latestLabel() const;
  QString latestValue() const;
  bool disableCurrent() const { return view().disableCurrent; }
  bool disableFirst() const { return view().disableFirst; }
  bool playFutureGames() const { return view().playFutureGames; }
  QStringList allDatesInfo() const;
  int selectedDateIndex() const { return view().selectedDateIndex; }
  bool selectingDate() const { return view().selectingDate; }
  QString dateListTitle() const;

  QString hintsLine() const;
  bool showHintsAlert() const { return view().showHintsAlert; }
  QString scoreLine() const;
  QString scoreMark() const;
  QString scoreMarkColor() const;
  QString definitionLine() const;
  QString hintDefinitionLine() const;

  bool thankYouFlag() const { return view().thankYouFlag; }
  QString thankYou() const { return QString::fromStdString(view().thankYou); }
  bool showChristmasAlert() const { return view().showAlert4; }
  QString christmasMessage() const { return QString::fromStdString(view().ChristmasMessage); }
  static QString hintsAlertTitle();
  static QString hintsAlertConfirm();
  static QString dateListButton();
  static QString christmasAlertTitle();
  static QString christmasAlertButton();

  // What a tile or key says to a screen reader: "C, green".
  Q_INVOKABLE QString spokenName(const QString& symbol, const QString& colorName) const;
  // The character drawn for a symbol: the operators of an equation game get their own signs.
  Q_INVOKABLE QString glyphFor(const QString& symbol) const;

  // Actions.
  Q_INVOKABLE void launch();
  Q_INVOKABLE void pressKey(int keyIndex);
  // A key of a physical keyboard: a letter, digit or operator that the keypad has and that is live.
  Q_INVOKABLE bool typeText(const QString& text);
  Q_INVOKABLE void touchCell(int cellIndex);
  Q_INVOKABLE void clearCell();
  Q_INVOKABLE void clearRow();
  Q_INVOKABLE void moveCorrectLetters();
  Q_INVOKABLE void submitGuess();
  Q_INVOKABLE void pressHints();
  Q_INVOKABLE void confirmHint();
  Q_INVOKABLE void dismissHintsAlert();
  Q_INVOKABLE void openDateList();
  Q_INVOKABLE void goToToday();
  Q_INVOKABLE void goToLatestOpen();
  Q_INVOKABLE void goForward();
  Q_INVOKABLE void pickDate(int line);
  Q_INVOKABLE void dismissChristmasAlert();
  // Chooses a game type as the options screen does (used by scripted screenshots).
  Q_INVOKABLE void chooseGameType(const QString& gameType);
  void changePhase(tessarine::ScenePhase phase);

 public slots:
  void onApplicationStateChanged(Qt::ApplicationState state);

 signals:
  void changed();

 private:
  const tessarine::ContentView& view() const;
  bool keyLive(int keyIndex) const;
  // Runs an action on the session unless the bridge is fatal, catches a FatalError, then notifies.
  void act(const std::function<void(tessarine::Session&)>& action);
  void run(void (tessarine::Session::*action)());

  tessarine::Session* session_ = nullptr;
  QString fatalMessage_;
  QSizeF viewport_{390, 844};
};
