#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QStringList>
#include <functional>
#include <memory>

#include "challenge/match.h"
#include "match_texts.h"
#include "tile_list_model.h"

class SessionHost;
namespace tessarine {
class Session;
}

// The challenge screens: the match with its key pad, board, choices and texts, the saved matches,
// and the challenge statistics. The match runs beside the game on the session's challenge store;
// every action goes through the host, which refreshes this model after it.
class MatchModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(bool active READ active NOTIFY changed)
  Q_PROPERTY(MatchTexts* texts READ texts CONSTANT)
  Q_PROPERTY(TileListModel* board READ board CONSTANT)
  Q_PROPERTY(TileListModel* keypad READ keypad CONSTANT)
  Q_PROPERTY(TileListModel* digitPad READ digitPad CONSTANT)
  Q_PROPERTY(bool atKey READ atKey NOTIFY changed)
  Q_PROPERTY(QStringList keyCells READ keyCells NOTIFY changed)
  Q_PROPERTY(int keyCursor READ keyCursor NOTIFY changed)
  // They follow the window as well as the game type.
  Q_PROPERTY(qreal cellWidth READ cellWidth NOTIFY sizesChanged)
  Q_PROPERTY(qreal keyWidth READ keyWidth NOTIFY sizesChanged)
  Q_PROPERTY(bool showKeypad READ showKeypad NOTIFY changed)
  Q_PROPERTY(bool submitEnabled READ submitEnabled NOTIFY changed)
  Q_PROPERTY(bool showChoices READ showChoices NOTIFY changed)
  Q_PROPERTY(QStringList choiceLabels READ choiceLabels NOTIFY changed)
  Q_PROPERTY(bool showWalkButton READ showWalkButton NOTIFY changed)
  Q_PROPERTY(bool walkSelected READ walkSelected NOTIFY changed)
  Q_PROPERTY(bool showUndo READ showUndo NOTIFY changed)
  Q_PROPERTY(bool showTrash READ showTrash NOTIFY changed)
  Q_PROPERTY(bool showQuestion READ showQuestion NOTIFY changed)
  Q_PROPERTY(bool canAccept READ canAccept NOTIFY changed)
  Q_PROPERTY(bool canSave READ canSave NOTIFY changed)
  Q_PROPERTY(bool canPaste READ canPaste NOTIFY changed)
  Q_PROPERTY(int ballLamps READ ballLamps NOTIFY changed)
  Q_PROPERTY(int strikeLamps READ strikeLamps NOTIFY changed)
  Q_PROPERTY(QString titleLine READ titleLine NOTIFY changed)
  // The key's six digits when the title line is the key, drawn as keycaps by the screen itself.
  Q_PROPERTY(QString titleKeyDigits READ titleKeyDigits NOTIFY changed)
  Q_PROPERTY(QString statusLine READ statusLine NOTIFY changed)
  Q_PROPERTY(QString statusSecondLine READ statusSecondLine NOTIFY changed)
  Q_PROPERTY(QString sendLabel READ sendLabel NOTIFY changed)
  Q_PROPERTY(bool gameOver READ gameOver NOTIFY changed)
  Q_PROPERTY(QString banner READ banner NOTIFY changed)
  Q_PROPERTY(QString bannerAnswer READ bannerAnswer NOTIFY changed)
  Q_PROPERTY(QStringList savedNames READ savedNames NOTIFY changed)
  Q_PROPERTY(QString message READ message NOTIFY changed)
  Q_PROPERTY(QString statisticsTitle READ statisticsTitle NOTIFY changed)
  Q_PROPERTY(QStringList statisticsLines READ statisticsLines NOTIFY changed)

 public:
  explicit MatchModel(SessionHost& host);
  ~MatchModel() override;

  bool active() const { return match_ != nullptr && open_; }
  MatchTexts* texts() { return &texts_; }
  TileListModel* board() { return &board_; }
  TileListModel* keypad() { return &keypad_; }
  TileListModel* digitPad() { return &digitPad_; }
  bool atKey() const { return view_.atKey; }
  QStringList keyCells() const;
  int keyCursor() const;
  qreal cellWidth() const { return cellWidth_; }
  qreal keyWidth() const { return keyWidth_; }
  bool showKeypad() const { return view_.showKeypad; }
  bool submitEnabled() const { return view_.submitEnabled; }
  bool showChoices() const { return view_.showChoices; }
  QStringList choiceLabels() const;
  bool showWalkButton() const { return view_.showWalkButton; }
  bool walkSelected() const { return view_.walkSelected; }
  bool showUndo() const { return view_.showUndo; }
  bool showTrash() const { return view_.showTrash; }
  bool showQuestion() const { return view_.showQuestion; }
  bool canAccept() const;
  bool canSave() const;
  bool canPaste() const;
  int ballLamps() const { return view_.ballLamps; }
  int strikeLamps() const { return view_.strikeLamps; }
  QString titleLine() const;
  QString titleKeyDigits() const;
  QString statusLine() const;
  QString statusSecondLine() const;
  QString sendLabel() const;
  bool gameOver() const { return view_.gameOver; }
  QString banner() const;
  QString bannerAnswer() const;
  QStringList savedNames() const;
  QString message() const { return message_; }
  QString statisticsTitle() const;
  QStringList statisticsLines() const;

  // Opening: a new match of `gameType` (the game on the main screen when empty), the key pad of
  // the accepting player, a saved match, or the statistics of the game type.
  Q_INVOKABLE void open(const QString& gameType = {});
  Q_INVOKABLE void accept();
  Q_INVOKABLE void continueSaved(int choice);
  Q_INVOKABLE void deleteSaved(int choice);
  Q_INVOKABLE void openStatistics(const QString& gameType = {});

  // Entry. A key is its row in its pad's model; a cell is its index on the board.
  Q_INVOKABLE void pressDigit(int keyIndex);
  Q_INVOKABLE void pressKey(int keyIndex);
  Q_INVOKABLE bool typeText(const QString& text);
  Q_INVOKABLE void touchCell(int cellIndex);
  Q_INVOKABLE void clearCell();
  Q_INVOKABLE void clearRow();
  Q_INVOKABLE void submit();

  // What the opponent did, the own turn's walk, and taking a choice back.
  Q_INVOKABLE void choose(int choiceIndex);
  Q_INVOKABLE void toggleWalk();
  Q_INVOKABLE void undo();

  // The text of the send button goes to the share sink; a received text is pasted in.
  Q_INVOKABLE void send();
  Q_INVOKABLE void sendStatistics();
  Q_INVOKABLE void paste();

  // Saving with a name closes the match (true); otherwise `message` says why not.
  Q_INVOKABLE bool save(const QString& name);
  // Leaving the screen without a name.
  Q_INVOKABLE void leave();

  // Asks the sheets to show a challenge screen ("challenge" or "statistics"): the way in for
  // scripted runs until the options screen has its door.
  void requestScreen(const QString& screen) { emit screenRequested(screen); }

 public slots:
  void refresh();

 signals:
  void changed();
  void screenRequested(const QString& screen);
  void sizesChanged();

 private:
  void build(tessarine::Session& session);
  void act(const std::function<void(tessarine::Match&)>& action);
  bool english() const { return match_ == nullptr || match_->english(); }
  std::string gameTypeOr(const QString& gameType) const;
  void relayout();

  SessionHost& host_;
  std::unique_ptr<tessarine::Match> match_;
  bool open_ = false;
  tessarine::MatchView view_;
  MatchTexts texts_;
  QString message_;
  TileListModel board_;
  TileListModel keypad_;
  TileListModel digitPad_;
  qreal cellWidth_ = 0;
  qreal keyWidth_ = 0;
};
