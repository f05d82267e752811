#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <string_view>

#include "board_presentation.h"
#include "screens/board_sizes.h"
#include "tile_list_model.h"

class SessionHost;

// The main screen: the board with its row marks, the keypad with the buttons under it, and the
// score, definition and hint texts. The board and keypad models are rebuilt from the session
// after each action, every key's liveness worked out once there.
class MainScreenModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Owned by the session host")
  Q_PROPERTY(TileListModel* board READ board CONSTANT)
  Q_PROPERTY(TileListModel* keypad READ keypad CONSTANT)
  Q_PROPERTY(QString gameType READ gameType NOTIFY changed)
  Q_PROPERTY(int activeRow READ activeRow NOTIFY changed)
  Q_PROPERTY(int currentPosition READ currentPosition NOTIFY changed)
  Q_PROPERTY(QStringList rowMarks READ rowMarks NOTIFY changed)
  Q_PROPERTY(QStringList rowMarkColors READ rowMarkColors NOTIFY changed)
  Q_PROPERTY(QStringList rowMarkNames READ rowMarkNames NOTIFY changed)
  Q_PROPERTY(QStringList familyMarks READ familyMarks NOTIFY changed)
  Q_PROPERTY(bool showKeypad READ showKeypad NOTIFY changed)
  Q_PROPERTY(bool submitEnabled READ submitEnabled NOTIFY changed)
  Q_PROPERTY(bool greenButtonEnabled READ greenButtonEnabled NOTIFY changed)
  Q_PROPERTY(bool hasHintsButton READ hasHintsButton NOTIFY changed)
  Q_PROPERTY(bool hintsEnabled READ hintsEnabled NOTIFY changed)
  Q_PROPERTY(bool shareEnabled READ shareEnabled NOTIFY changed)
  // The width the phone layout is drawn at: the window's, or less where the height would not hold
  // the whole screen; the column is centred in the window.
  Q_PROPERTY(qreal layoutWidth READ layoutWidth NOTIFY changed)
  // TESSARINE_REDUCED_MOTION set to anything but 0: tiles change without turning over.
  Q_PROPERTY(bool reducedMotion READ reducedMotion CONSTANT)
  Q_PROPERTY(qreal cellWidth READ cellWidth NOTIFY changed)
  Q_PROPERTY(qreal keypadWidth READ keypadWidth NOTIFY changed)
  Q_PROPERTY(QString scoreLine READ scoreLine NOTIFY changed)
  Q_PROPERTY(QString scoreMark READ scoreMark NOTIFY changed)
  Q_PROPERTY(QString scoreMarkColor READ scoreMarkColor NOTIFY changed)
  Q_PROPERTY(QString definitionLine READ definitionLine NOTIFY changed)
  Q_PROPERTY(QString lostAnswerLine READ lostAnswerLine NOTIFY changed)
  Q_PROPERTY(QString refusalMessage READ refusalMessage NOTIFY changed)
  Q_PROPERTY(QString hintsLine READ hintsLine NOTIFY changed)
  Q_PROPERTY(QString hintDefinitionLine READ hintDefinitionLine NOTIFY changed)

 public:
  explicit MainScreenModel(SessionHost& host);

  TileListModel* board() { return &board_; }
  TileListModel* keypad() { return &keypad_; }
  QString gameType() const;
  int activeRow() const;
  int currentPosition() const;
  QStringList rowMarks() const { return rowMarks_; }
  QStringList rowMarkColors() const { return rowMarkColors_; }
  QStringList rowMarkNames() const { return rowMarkNames_; }
  QStringList familyMarks() const;
  bool showKeypad() const;
  bool submitEnabled() const;
  bool greenButtonEnabled() const;
  bool hasHintsButton() const;
  bool hintsEnabled() const { return hintsEnabled_; }
  bool shareEnabled() const;  // once the game of the shown day is over

  // The window, as reported through resizeViewport().
  QSizeF viewport() const { return viewport_; }
  Q_INVOKABLE void resizeViewport(qreal width, qreal height);
  qreal layoutWidth() const { return layoutWidth_; }
  bool reducedMotion() const;
  qreal cellWidth() const { return metrics_.cellWidth; }
  qreal keypadWidth() const { return metrics_.keypadWidth; }
  // The sizes of `gameType` drawn across the whole window, for a screen that lays out rows of its
  // own (the match) rather than the main screen's fitted column.
  tessarine::BoardMetrics windowMetrics(std::string_view gameType) const;

  QString scoreLine() const;
  QString scoreMark() const;
  QString scoreMarkColor() const;
  QString definitionLine() const;
  QString lostAnswerLine() const;
  QString refusalMessage() const;
  QString hintsLine() const;
  QString hintDefinitionLine() const;

  // Actions. A key is its row in the keypad model.
  Q_INVOKABLE void pressKey(int keyIndex);
  // A key of a physical keyboard: a letter, digit or operator that the keypad has and that is live.
  Q_INVOKABLE bool typeText(const QString& text);
  // On the active row a touch moves the cursor; on a finished board it hides the tile from the
  // shared grid, or shows it again.
  Q_INVOKABLE void touchCell(int cellIndex);
  Q_INVOKABLE void shareGame();
  Q_INVOKABLE void clearCell();
  // Backspace and the arrow keys of a physical keyboard.
  Q_INVOKABLE void backspace();
  Q_INVOKABLE void moveCursor(int step);
  Q_INVOKABLE void clearRow();
  Q_INVOKABLE void moveCorrectLetters();
  Q_INVOKABLE void submitGuess();
  Q_INVOKABLE void pressHints();

 public slots:
  // Rebuilds the board, keypad and row marks from the session, then emits `changed`.
  void refresh();

 signals:
  void changed();
  // The window's size changed; `changed` follows too.
  void resized();

 private:
  void rebuildBoard();
  void rebuildKeypad();
  void rebuildRowMarks();
  // The layout width and tile sizes follow the game type and the window; both change only in
  // refresh() and resizeViewport().
  void relayout();

  SessionHost& host_;
  TileListModel board_;
  TileListModel keypad_;
  QStringList rowMarks_, rowMarkColors_, rowMarkNames_;
  bool hintsEnabled_ = false;
  QSizeF viewport_{390, 844};
  qreal layoutWidth_ = 390;
  tessarine::BoardMetrics metrics_;
};
