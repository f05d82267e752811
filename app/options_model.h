#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <optional>

#include "screens/seventh_view.h"
#include "storage/presentation.h"

class SessionHost;

// The options sheet: the four groups of game types, the languages, the option rows and the
// colour-blind choice, over the core's sheet model. Every touch changes the sheet's copy of the
// choices; closing applies them at once when they really changed (settings record, catalogue,
// refresh), as the main screen's own options path does.
class OptionsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString gameType READ gameType NOTIFY changed)
  // [{label, selected, items: [{label, selected}]}], in the order of the sheet.
  Q_PROPERTY(QVariantList groups READ groups NOTIFY changed)
  // [{name, label, symbol, on}] for the eight options; "playChallenge" opens the match.
  Q_PROPERTY(QVariantList optionRows READ optionRows NOTIFY changed)
  Q_PROPERTY(QString colourBlindLabel READ colourBlindLabel NOTIFY changed)
  Q_PROPERTY(bool colourBlind READ colourBlind NOTIFY changed)
  Q_PROPERTY(QString challengeHeading READ challengeHeading NOTIFY changed)
  Q_PROPERTY(QString playChallengeLabel READ playChallengeLabel NOTIFY changed)
  Q_PROPERTY(QString rulesTitle READ rulesTitle CONSTANT)

 public:
  explicit OptionsModel(SessionHost& host);

  bool isOpen() const { return sheet_.has_value(); }
  QString title() const;
  QString gameType() const;
  QVariantList groups() const;
  QVariantList optionRows() const;
  QString colourBlindLabel() const;
  bool colourBlind() const { return shownPresentation().colourBlind; }
  QString challengeHeading() const;
  QString playChallengeLabel() const;
  static QString rulesTitle();

  // The choices as the player sees them now: the sheet's while it is open, else the session's.
  tessarine::Options shownOptions() const;
  tessarine::Presentation shownPresentation() const;

  Q_INVOKABLE void open();
  Q_INVOKABLE void chooseGroup(int group);
  Q_INVOKABLE void chooseItem(int group, int item);
  Q_INVOKABLE void setOption(const QString& name, bool on);
  Q_INVOKABLE void setColourBlind(bool on);
  // The back button. Returns whether the choices changed and were applied.
  Q_INVOKABLE bool close();

 signals:
  void changed();

 private:
  template <typename Change>
  void change(Change apply);

  SessionHost& host_;
  std::optional<tessarine::SeventhView> sheet_;
  tessarine::Presentation presentation_;
};
