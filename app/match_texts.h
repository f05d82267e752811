#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <string>

// The fixed words of the challenge screens in the player's language, from the core.
class MatchTexts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the match model")
  Q_PROPERTY(QString heading MEMBER heading NOTIFY changed)
  Q_PROPERTY(QString balls MEMBER balls NOTIFY changed)
  Q_PROPERTY(QString strikes MEMBER strikes NOTIFY changed)
  Q_PROPERTY(QString accept MEMBER accept NOTIFY changed)
  Q_PROPERTY(QString paste MEMBER paste NOTIFY changed)
  Q_PROPERTY(QString saveTitle MEMBER saveTitle NOTIFY changed)
  Q_PROPERTY(QString namePrompt MEMBER namePrompt NOTIFY changed)
  Q_PROPERTY(QString save MEMBER save NOTIFY changed)
  Q_PROPERTY(QString cancel MEMBER cancel NOTIFY changed)
  Q_PROPERTY(QString remove MEMBER remove NOTIFY changed)
  Q_PROPERTY(QString deleteTitle MEMBER deleteTitle NOTIFY changed)
  Q_PROPERTY(QString selectTitle MEMBER selectTitle NOTIFY changed)
  Q_PROPERTY(QString selectButton MEMBER selectButton NOTIFY changed)
  Q_PROPERTY(QString continueSaved MEMBER continueSaved NOTIFY changed)

 public:
  using QObject::QObject;
  // Takes the words of `gameType` in the language chosen; emits `changed` when any differs.
  void load(const std::string& gameType, bool english);

  QString heading, balls, strikes, accept, paste, saveTitle, namePrompt, save, cancel, remove, deleteTitle,
      selectTitle, selectButton, continueSaved;

 signals:
  void changed();
};
