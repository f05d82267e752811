#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

class OptionsModel;

// The two reading sheets: how to play (from the main screen) and the challenge's rules (from the
// options sheet). Both speak of the game type and language the player sees now, the options
// sheet's choices while it is open.
class HelpModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(QString helpTitle READ helpTitle NOTIFY changed)
  Q_PROPERTY(QString backSymbol READ backSymbol CONSTANT)
  // [{heading, lines: [{text, symbol, colorName, rows: [[{glyph, colorName, spokenName, pattern}]]}]}]
  Q_PROPERTY(QVariantList helpSections READ helpSections NOTIFY changed)
  Q_PROPERTY(QString rulesTitle READ rulesTitle NOTIFY changed)
  Q_PROPERTY(QString rulesBullet READ rulesBullet CONSTANT)
  Q_PROPERTY(QStringList rules READ rules NOTIFY changed)

 public:
  HelpModel(OptionsModel& options, QObject* parent);

  QString helpTitle() const;
  static QString backSymbol();
  QVariantList helpSections() const;
  QString rulesTitle() const;
  static QString rulesBullet();
  QStringList rules() const;

 signals:
  void changed();

 private:
  const OptionsModel& options_;
};
