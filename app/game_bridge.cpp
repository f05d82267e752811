#include "game_bridge.h"

#include <QCoreApplication>
#include <cstdio>

#include "board_presentation.h"
#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"
#include "session/session_texts.h"

using tessarine::ContentView;
using tessarine::Session;

namespace {

QString text(const std::string& value) {
  return QString::fromStdString(value);
}
QString text(std::string_view value) {
  return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

QString colorName(tessarine::TileColor color) {
  const auto name = tessarine::tileColorName(color);
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

// The record's empty cell is three blanks; the screen draws nothing for it.
QString cellText(const std::string& letter) {
  return letter == tessarine::kEmptyCell ? QString() : text(letter);
}

int boardCells(const ContentView& view) {
  return std::min(view.gameRows * view.gameLetters, tessarine::kMaximumCells);
}

}  // namespace

void GameBridge::fail(const QString& message) {
  if (!fatalMessage_.isEmpty()) return;
  fatalMessage_ = message.isEmpty() ? QStringLiteral("Unknown error") : message;
  std::fprintf(stderr, "Fatal error: %s\n", fatalMessage_.toLocal8Bit().constData());
  std::fflush(stderr);
  emit changed();
}

const ContentView& GameBridge::view() const {
  static const ContentView empty;
  return session_ != nullptr ? session_->view() : empty;
}

void GameBridge::act(const std::function<void(Session&)>& action) {
  if (!ready()) return;
  try {
    action(*session_);
  } catch (const std::exception& error) {
    // Anything the core cannot play on from stops here, on the fatal screen, not in a crash.
    fail(QString::fromStdString(error.what()));
    return;
  }
  emit changed();
}

void GameBridge::run(void (Session::*action)()) {
  act([action](Session& s) { (s.*action)(); });
}

QString GameBridge::gameType() const {
  return text(view().gameType);
}
QString GameBridge::typeOfGame() const {
  return text(view().typeOfGame);
}

QStringList GameBridge::cellLetters() const {
  QStringList letters;
  for (int i = 0; i < boardCells(view()); ++i)
    letters << cellText(view().cellLetter[i]);
  return letters;
}

QStringList GameBridge::cellColors() const {
  QStringList colors;
  for (int i = 0; i < boardCells(view()); ++i)
    colors << colorName(view().cellBackground[i]);
  return colors;
}

QList<qreal> GameBridge::cellBorders() const {
  QList<qreal> borders;
  for (int i = 0; i < boardCells(view()); ++i)
    borders << view().cellBorderWidth[i];
  return borders;
}

QStringList GameBridge::rowMarks() const {
  QStringList marks;
  for (int row = 0; row < view().gameRows; ++row) {
    marks << (view().showStarStatus ? text(tessarine::rowMark(view(), row).symbol) : QString());
  }
  return marks;
}

QStringList GameBridge::rowMarkColors() const {
  QStringList colors;
  for (int row = 0; row < view().gameRows; ++row)
    colors << text(tessarine::rowMark(view(), row).color);
  return colors;
}

QStringList GameBridge::familyMarks() const {
  QStringList marks;
  for (int row = 0; row < view().gameRows; ++row)
    marks << text(tessarine::familyMark(view(), row).symbol);
  return marks;
}

QStringList GameBridge::keyLabels() const {
  QStringList labels;
  for (int i = 0; i < view().keypadNumber; ++i)
    labels << text(view().keypadLetters[i]);
  return labels;
}

QStringList GameBridge::keyColors() const {
  QStringList colors;
  for (int i = 0; i < view().keypadNumber; ++i)
    colors << colorName(view().keypadKeyColor[i]);
  return colors;
}

QList<bool> GameBridge::keysLive() const {
  QList<bool> live;
  for (int i = 0; i < view().keypadNumber; ++i)
    live << keyLive(i);
  return live;
}

QVariantList GameBridge::keyRows() const {
  QVariantList rows;
  for (const auto& row : ::keyRows(view())) {
    QVariantList keys;
    for (int index : row)
      keys << index;
    rows << QVariant(keys);
  }
  return rows;
}

bool GameBridge::hasHintsButton() const {
  return tessarine::hasHints(view().gameType);
}

bool GameBridge::hintsEnabled() const {
  return session_ != nullptr && session_->hintsButtonLive();
}

bool GameBridge::keyLive(int keyIndex) const {
  if (!ready() || keyIndex < 0 || keyIndex >= view().keypadNumber) return false;
  try {
    return session_->keyLive(view().keypadLetters[keyIndex]);
  } catch (const tessarine::FatalError&) {
    return false;  // the missing list stops the game at the next action
  }
}

void GameBridge::setViewport(const QSizeF& size) {
  if (size == viewport_ || size.isEmpty()) return;
  viewport_ = size;
  emit changed();
}

qreal GameBridge::cellWidth() const {
  return boardMetrics(view().gameType, view().useQWERTY, viewport_.width(), viewport_.height()).cellWidth;
}

qreal GameBridge::keypadWidth() const {
  return boardMetrics(view().gameType, view().useQWERTY, viewport_.width(), viewport_.height()).keypadWidth;
}

QString GameBridge::shownDate() const {
  if (session_ == nullptr) return {};
  return text(tessarine::shownDateText(view(), session_->clock()));
}

QString GameBridge::latestLabel() const {
  return text(tessarine::latestOpenLabel(view()));
}

QString GameBridge::latestValue() const {
  if (session_ == nullptr) return {};
  return text(tessarine::latestOpenValue(view(), session_->clock()));
}

QStringList GameBridge::allDatesInfo() const {
  QStringList lines;
  for (const auto& line : view().allDatesInfo)
    lines << text(line);
  return lines;
}

QString GameBridge::dateListTitle() const {
  return text(tessarine::dateListTitle(view()));
}

QString GameBridge::hintsLine() const {
  return text(tessarine::hintsCountLine(view()));
}

QString GameBridge::scoreLine() const {
  return text(tessarine::scoreLine(view()));
}

QString GameBridge::scoreMark() const {
  return text(tessarine::scoreMark(view()).symbol);
}

QString GameBridge::scoreMarkColor() const {
  return text(tessarine::scoreMark(view()).color);
}

// The lists are read on first use; a missing one is reported by the action that needed it first.
QString GameBridge::definitionLine() const {
  if (session_ == nullptr) return {};
  try {
    return text(tessarine::definitionLine(view(), session_->lists()));
  } catch (const tessarine::FatalError&) {
    return {};
  }
}

QString GameBridge::hintDefinitionLine() const {
  if (session_ == nullptr) return {};
  try {
    return text(tessarine::hintDefinitionLine(view(), session_->lists()));
  } catch (const tessarine::FatalError&) {
    return {};
  }
}

QString GameBridge::hintsAlertTitle() {
  return text(tessarine::kHintsAlertTitle);
}
QString GameBridge::hintsAlertConfirm() {
  return text(tessarine::kHintsAlertConfirm);
}
QString GameBridge::dateListButton() {
  return text(tessarine::kDateListButton);
}
QString GameBridge::christmasAlertTitle() {
  return QString::fromUtf8(tessarine::kChristmasAlertTitle);
}
QString GameBridge::christmasAlertButton() {
  return QString::fromUtf8(tessarine::kChristmasAlertButton);
}

QString GameBridge::spokenName(const QString& symbol, const QString& colorName) const {
  QString said = symbol.trimmed();
  if (said.isEmpty()) said = QStringLiteral("blank");
  if (view().typeOfGame == "E") {
    if (said == "+") said = QStringLiteral("plus");
    if (said == "-") said = QStringLiteral("minus");
    if (said == "X") said = QStringLiteral("times");
    if (said == "/") said = QStringLiteral("divided by");
    if (said == "=") said = QStringLiteral("equals");
  }
  return said + QStringLiteral(", ") + colorName;
}

QString GameBridge::glyphFor(const QString& symbol) const {
  if (view().typeOfGame != "E") return symbol;
  if (symbol == "X") return QStringLiteral("\u00d7");
  if (symbol == "/") return QStringLiteral("\u00f7");
  if (symbol == "-") return QStringLiteral("\u2212");
  return symbol;
}

void GameBridge::launch() {
  run(&Session::launch);
}

void GameBridge::pressKey(int keyIndex) {
  if (!ready() || !keyLive(keyIndex)) return;
  const std::string symbol = view().keypadLetters[keyIndex];
  act([&](Session& s) { s.enterSymbol(symbol); });
}

bool GameBridge::typeText(const QString& typed) {
  if (!ready() || !view().showKeypad) return false;
  QString symbol = typed.toUpper();
  if (symbol == "*") symbol = QStringLiteral("X");
  for (int i = 0; i < view().keypadNumber; ++i) {
    if (text(view().keypadLetters[i]) == symbol && keyLive(i)) {
      pressKey(i);
      return true;
    }
  }
  return false;
}

void GameBridge::touchCell(int cellIndex) {
  const ContentView& v = view();
  if (v.gameLetters <= 0 || cellIndex / v.gameLetters != v.activeRow || !v.showKeypad) return;
  act([&](Session& s) { s.touchCell(cellIndex % v.gameLetters); });
}

void GameBridge::clearCell() {
  run(&Session::clearCell);
}
void GameBridge::clearRow() {
  run(&Session::clearRow);
}
void GameBridge::moveCorrectLetters() {
  run(&Session::moveCorrectLetters);
}
void GameBridge::submitGuess() {
  run(&Session::submitGuess);
}
void GameBridge::pressHints() {
  if (hintsEnabled()) run(&Session::pressHints);
}
void GameBridge::confirmHint() {
  run(&Session::confirmHint);
}
void GameBridge::openDateList() {
  run(&Session::openDateList);
}
void GameBridge::dismissHintsAlert() {
  run(&Session::dismissHintsAlert);
}
void GameBridge::goToToday() {
  run(&Session::goToToday);
}
void GameBridge::goToLatestOpen() {
  run(&Session::goToLatestOpen);
}
void GameBridge::goForward() {
  run(&Session::goForward);
}
void GameBridge::pickDate(int line) {
  act([line](Session& s) { s.pickDate(line); });
}
void GameBridge::dismissChristmasAlert() {
  run(&Session::dismissChristmasAlert);
}

void GameBridge::chooseGameType(const QString& gameType) {
  const std::string type = gameType.toStdString();
  act([&](Session& s) {
    tessarine::Options options = s.options();
    options.gameType = type;
    s.applyOptions(options);
  });
}

void GameBridge::changePhase(tessarine::ScenePhase phase) {
  act([phase](Session& s) { s.changePhase(phase); });
}

void GameBridge::onApplicationStateChanged(Qt::ApplicationState state) {
  switch (state) {
    case Qt::ApplicationActive:
      changePhase(tessarine::ScenePhase::active);
      break;
    case Qt::ApplicationInactive:
      changePhase(tessarine::ScenePhase::inactive);
      break;
    case Qt::ApplicationHidden:
    case Qt::ApplicationSuspended:
      changePhase(tessarine::ScenePhase::background);
      break;
  }
}
