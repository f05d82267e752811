#include "appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace {

bool systemIsDark() {
  const QString forced = qEnvironmentVariable("TESSARINE_APPEARANCE").toLower();
  if (forced == QLatin1String("dark")) return true;
  if (forced == QLatin1String("light")) return false;
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

}  // namespace

Appearance::Appearance(QObject* parent) : QObject(parent), dark_(systemIsDark()) {
  if (qApp != nullptr) qApp->installEventFilter(this);
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) follow();
  return QObject::eventFilter(watched, event);
}

void Appearance::follow() {
  const bool dark = systemIsDark();
  if (dark == dark_) return;
  dark_ = dark;
  emit changed();
}
