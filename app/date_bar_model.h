#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QStringList>

class SessionHost;

// The date bar and the date wheel: the shown day, the latest open day, and the list of days.
class DateBarModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(QString shownDate READ shownDate NOTIFY changed)
  Q_PROPERTY(QString latestLabel READ latestLabel NOTIFY changed)
  Q_PROPERTY(QString latestValue READ latestValue NOTIFY changed)
  Q_PROPERTY(bool currentEnabled READ currentEnabled NOTIFY changed)
  Q_PROPERTY(bool latestEnabled READ latestEnabled NOTIFY changed)
  Q_PROPERTY(bool playFutureGames READ playFutureGames NOTIFY changed)
  Q_PROPERTY(QStringList allDatesInfo READ allDatesInfo NOTIFY changed)
  Q_PROPERTY(int selectedDateIndex READ selectedDateIndex NOTIFY changed)
  Q_PROPERTY(bool selectingDate READ selectingDate NOTIFY changed)
  Q_PROPERTY(QString dateListTitle READ dateListTitle NOTIFY changed)
  Q_PROPERTY(QString dateListButton READ dateListButton CONSTANT)

 public:
  explicit DateBarModel(SessionHost& host);

  QString shownDate() const;
  QString latestLabel() const;
  QString latestValue() const;
  bool currentEnabled() const;
  bool latestEnabled() const;
  bool playFutureGames() const;
  QStringList allDatesInfo() const;
  int selectedDateIndex() const;
  bool selectingDate() const;
  QString dateListTitle() const;
  static QString dateListButton();

  Q_INVOKABLE void openDateList();
  Q_INVOKABLE void goToToday();
  Q_INVOKABLE void goToLatestOpen();
  Q_INVOKABLE void goForward();
  Q_INVOKABLE void pickDate(int line);

 signals:
  void changed();

 private:
  SessionHost& host_;
};
