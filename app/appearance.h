#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

// Light or dark, following the system. Qt 6.4 cannot ask the platform for its colour scheme, so
// the platform palette's window colour decides: a dark window means a dark system.
// TESSARINE_APPEARANCE=dark|light forces one, for screenshots and for systems that say nothing.
class Appearance : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool dark READ dark NOTIFY changed)

 public:
  explicit Appearance(QObject* parent = nullptr);
  bool dark() const { return dark_; }

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow();
  bool dark_ = false;
};
