#include "main_screen_model.h"

#include <algorithm>

#include "board_presentation.h"
#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"
#include "core_text.h"
#include "screens/board_sizes.h"
#include "screens/refusal_message.h"
#include "session/session_texts.h"
#include "session_host.h"
#include "tile_items.h"
#include "tile_texts.h"

using tessarine::ContentView;
using tessarine::Session;

namespace {

// The lists are read on first use; a missing one is reported by the action that needed it first.
template <typename Read>
QString lineOrNothing(const SessionHost& host, Read read) {
  if (host.session() == nullptr) return {};
  try {
    return fromCore(read(host.view(), host.session()->lists()));
  } catch (const tessarine::FatalError&) {
    return {};
  }
}

}  // namespace

MainScreenModel::MainScreenModel(SessionHost& host)
    : QObject(&host), host_(host), board_(this), keypad_(this) {}

void MainScreenModel::refresh() {
  rebuildBoard();
  rebuildKeypad();
  rebuildRowMarks();
  relayout();
  hintsEnabled_ = host_.session() != nullptr && host_.session()->hintsButtonLive();
  emit changed();
}

void MainScreenModel::rebuildBoard() {
  const ContentView& view = host_.view();
  board_.setItems(boardItems(view, view.gameRows, view.presentation.colourBlind));
}

void MainScreenModel::rebuildKeypad() {
  const ContentView& view = host_.view();
  std::vector<TileItem> items =
      keypadItems(view, keyRows(view), view.typeOfGame == "E", view.presentation.colourBlind);
  for (std::size_t i = 0; i < items.size(); ++i) {
    try {
      items[i].live = host_.ready() && host_.session()->keyLive(view.keypadLetters[i]);
    } catch (const tessarine::FatalError&) {
      items[i].live = false;  // the missing list stops the game at the next action
    }
  }
  keypad_.setItems(std::move(items));
}

QString MainScreenModel::gameType() const {
  return fromCore(host_.view().gameType);
}
int MainScreenModel::activeRow() const {
  return host_.view().activeRow;
}
int MainScreenModel::currentPosition() const {
  return host_.view().currentPosition;
}

// The symbol, colour and spoken name of each row's mark come from one look at the row.
void MainScreenModel::rebuildRowMarks() {
  const ContentView& view = host_.view();
  rowMarks_.clear();
  rowMarkColors_.clear();
  rowMarkNames_.clear();
  for (int row = 0; row < view.gameRows; ++row) {
    const tessarine::MarkSymbol mark = tessarine::rowMark(view, row);
    const QString symbol = view.showStarStatus ? fromCore(mark.symbol) : QString();
    rowMarks_ << symbol;
    rowMarkColors_ << fromCore(mark.color);
    rowMarkNames_ << spokenMark(symbol);
  }
}

QStringList MainScreenModel::familyMarks() const {
  const ContentView& view = host_.view();
  QStringList marks;
  for (int row = 0; row < view.gameRows; ++row)
    marks << fromCore(tessarine::familyMark(view, row).symbol);
  return marks;
}

bool MainScreenModel::showKeypad() const {
  return host_.view().showKeypad;
}
bool MainScreenModel::submitEnabled() const {
  return !host_.view().disableSubmit;
}
bool MainScreenModel::greenButtonEnabled() const {
  return !host_.view().disableGreenButton;
}
bool MainScreenModel::hasHintsButton() const {
  return tessarine::hasHints(host_.view().gameType);
}

void MainScreenModel::resizeViewport(qreal width, qreal height) {
  const QSizeF size(width, height);
  if (size == viewport_ || size.isEmpty()) return;
  viewport_ = size;
  relayout();
  emit resized();
  emit changed();
}

tessarine::BoardMetrics MainScreenModel::windowMetrics(std::string_view gameType) const {
  return tessarine::boardMetrics(gameType, host_.view().useQWERTY, viewport_.width(), viewport_.height());
}

void MainScreenModel::relayout() {
  const ContentView& view = host_.view();
  layoutWidth_ = fittedLayoutWidth(view.gameType, view.useQWERTY, view.gameRows, keypad_.gridRows(),
                                   viewport_.width(), viewport_.height());
  metrics_ = tessarine::boardMetrics(view.gameType, view.useQWERTY, layoutWidth_, viewport_.height());
}

bool MainScreenModel::reducedMotion() const {
  const QByteArray wanted = qgetenv("TESSARINE_REDUCED_MOTION");
  return !wanted.isEmpty() && wanted != "0";
}

QString MainScreenModel::scoreLine() const {
  return fromCore(tessarine::scoreLine(host_.view()));
}
QString MainScreenModel::scoreMark() const {
  return fromCore(tessarine::scoreMark(host_.view()).symbol);
}
QString MainScreenModel::scoreMarkColor() const {
  return fromCore(tessarine::scoreMark(host_.view()).color);
}
QString MainScreenModel::definitionLine() const {
  return lineOrNothing(
      host_, [](const ContentView& v, const auto& lists) { return tessarine::definitionLine(v, lists); });
}
QString MainScreenModel::lostAnswerLine() const {
  return fromCore(tessarine::lostAnswerLine(host_.view()));
}

QString MainScreenModel::refusalMessage() const {
  return fromCore(tessarine::refusalMessage(host_.view()));
}

QString MainScreenModel::hintsLine() const {
  return fromCore(tessarine::hintsCountLine(host_.view()));
}
QString MainScreenModel::hintDefinitionLine() const {
  return lineOrNothing(
      host_, [](const ContentView& v, const auto& lists) { return tessarine::hintDefinitionLine(v, lists); });
}

void MainScreenModel::pressKey(int keyIndex) {
  const auto& keys = keypad_.items();
  if (keyIndex < 0 || keyIndex >= static_cast<int>(keys.size()) || !keys[keyIndex].live) return;
  const std::string symbol = host_.view().keypadLetters[keyIndex];
  host_.act([&symbol](Session& s) { s.enterSymbol(symbol); });
}

bool MainScreenModel::typeText(const QString& typed) {
  if (!host_.ready() || !showKeypad()) return false;
  const int key = keypad_.liveIndexOf(typed);
  if (key >= 0) pressKey(key);
  return key >= 0;
}

bool MainScreenModel::shareEnabled() const {
  return host_.session() != nullptr && host_.session()->gameShareable();
}

void MainScreenModel::shareGame() {
  if (host_.session() == nullptr) return;
  if (const auto text = host_.session()->gameShareText()) host_.share(*text);
}

void MainScreenModel::touchCell(int cellIndex) {
  const ContentView& v = host_.view();
  if (!v.showKeypad) {
    host_.act([cellIndex](Session& s) { s.toggleHighlight(cellIndex); });
    return;
  }
  if (v.gameLetters <= 0 || cellIndex / v.gameLetters != v.activeRow) return;
  const int column = cellIndex % v.gameLetters;
  host_.act([column](Session& s) { s.touchCell(column); });
}

void MainScreenModel::clearCell() {
  host_.run(&Session::clearCell);
}
void MainScreenModel::backspace() {
  host_.run(&Session::backspace);
}
void MainScreenModel::moveCursor(int step) {
  host_.act([step](Session& s) { s.moveCursor(step); });
}
void MainScreenModel::clearRow() {
  host_.run(&Session::clearRow);
}
void MainScreenModel::moveCorrectLetters() {
  host_.run(&Session::moveCorrectLetters);
}
void MainScreenModel::submitGuess() {
  // Enter on a keyboard does what the submit button does, and only while it is live.
  if (submitEnabled()) host_.run(&Session::submitGuess);
}
void MainScreenModel::pressHints() {
  if (hintsEnabled_) host_.run(&Session::pressHints);
}
