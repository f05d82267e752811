#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

class SessionHost;

// What lies over the main screen: the hints question, the bonus-day present, and the cover shown
// while the app is not active. The session says when each is up; closing one reports back here.
class AlertsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(bool showHintsAlert READ showHintsAlert NOTIFY changed)
  Q_PROPERTY(bool showChristmasAlert READ showChristmasAlert NOTIFY changed)
  Q_PROPERTY(QString christmasMessage READ christmasMessage NOTIFY changed)
  Q_PROPERTY(bool thankYouFlag READ thankYouFlag NOTIFY changed)
  Q_PROPERTY(QString thankYou READ thankYou NOTIFY changed)
  Q_PROPERTY(QString hintsAlertTitle READ hintsAlertTitle CONSTANT)
  Q_PROPERTY(QString hintsAlertConfirm READ hintsAlertConfirm CONSTANT)
  Q_PROPERTY(QString christmasAlertTitle READ christmasAlertTitle CONSTANT)
  Q_PROPERTY(QString christmasAlertButton READ christmasAlertButton CONSTANT)

 public:
  explicit AlertsModel(SessionHost& host);

  bool showHintsAlert() const;
  bool showChristmasAlert() const;
  QString christmasMessage() const;
  bool thankYouFlag() const;
  QString thankYou() const;
  static QString hintsAlertTitle();
  static QString hintsAlertConfirm();
  static QString christmasAlertTitle();
  static QString christmasAlertButton();

  Q_INVOKABLE void confirmHint();
  Q_INVOKABLE void dismissHintsAlert();
  Q_INVOKABLE void dismissChristmasAlert();

 signals:
  void changed();

 private:
  SessionHost& host_;
};
