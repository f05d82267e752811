#include "share_sink.h"

#include <QClipboard>
#include <QGuiApplication>

void ClipboardShareSink::share(const QString& text) {
  text_ = text;
  copied_ = false;
  emit changed();
  emit presented();
}

void ClipboardShareSink::setEnglish(bool english) {
  if (english_ == english) return;
  english_ = english;
  emit changed();
}

QString ClipboardShareSink::title() const {
  return english_ ? QStringLiteral("Share") : QStringLiteral("Compartir");
}

QString ClipboardShareSink::copyButton() const {
  return english_ ? QStringLiteral("Copy") : QStringLiteral("Copiar");
}

QString ClipboardShareSink::copiedNote() const {
  if (!copied_) return {};
  return english_ ? QStringLiteral("Copied to the clipboard") : QStringLiteral("Copiado al portapapeles");
}

void ClipboardShareSink::copy() {
  QGuiApplication::clipboard()->setText(text_);
  copied_ = true;
  emit changed();
}

QString readPastedText() {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return clipboard != nullptr ? clipboard->text() : QString();
}
