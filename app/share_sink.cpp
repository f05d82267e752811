#include "share_sink.h"

#include <QClipboard>
#include <QGuiApplication>

#include "core_text.h"
#include "screens/share_sheet.h"

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
  return fromCore(tessarine::pick(tessarine::kShareSheetTitle, english_));
}

QString ClipboardShareSink::copyButton() const {
  return fromCore(tessarine::pick(tessarine::kShareSheetCopyButton, english_));
}

QString ClipboardShareSink::copiedNote() const {
  if (!copied_) return {};
  return fromCore(tessarine::pick(tessarine::kShareSheetCopiedNote, english_));
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
