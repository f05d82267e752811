#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

// Where every text that leaves the program goes: the game grid, the statistics summary, the list
// of dates and scores. One text a call, nothing excluded; the sink decides how the player sends
// it on. A platform with a share sheet of its own (Android's send intent) implements this and is
// handed to the session host by main().
class ShareSink {
 public:
  virtual ~ShareSink() = default;
  virtual void share(const QString& text) = 0;
};

// The desktop and Linux-phone sink: a sheet of the app's own that shows the text as the receiver
// will see it, with a button that puts it on the system clipboard and says so. The sheet opens
// on `presented`; its texts follow the game's language, which the host reports.
class ClipboardShareSink : public QObject, public ShareSink {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString copyButton READ copyButton NOTIFY changed)
  Q_PROPERTY(QString copiedNote READ copiedNote NOTIFY changed)

 public:
  using QObject::QObject;

  void share(const QString& text) override;
  void setEnglish(bool english);

  QString text() const { return text_; }
  QString title() const;
  QString copyButton() const;
  QString copiedNote() const;  // empty until the text is copied

  Q_INVOKABLE void copy();

 signals:
  void presented();
  void changed();

 private:
  QString text_;
  bool copied_ = false;
  bool english_ = true;
};

// A text the player received and copied: the other phone's challenge message.
QString readPastedText();
