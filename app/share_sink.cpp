#include "share_sink.h"

#include <QClipboard>
#include <QGuiApplication>

void sendToShareSink(const QString& text) {
  if (QClipboard* clipboard = QGuiApplication::clipboard()) clipboard->setText(text);
}

QString readPastedText() {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return clipboard != nullptr ? clipboard->text() : QString();
}
