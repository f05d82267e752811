#include "main_screen_model.h"

#include <algorithm>

#include "board_presentation.h"
#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"
#include "core_text.h"
#include "screens/board_sizes.h"
#include "screens/colour_marks.h"
#include "session/session_texts.h"
#include "session_host.h"
#include "tile_texts.h"

using tessarine::ContentView;
using tessarine::Session;

namespace {

QString colorName(tessarine::TileColor color) {
  return fromCore(tessarine::tileColorName(color));
}

bool isEquation(const ContentView& view) {
  return view.typeOfGame == "E";
}

TileItem tileItem(const std::string& symbol, tessarine::TileColor color, bool equation, bool colourBlind) {
  TileItem item;
  if (colourBlind) item.pattern = fromCore(tessarine::colourBlindMark(color));
  // The record's empty cell is three blanks; the screen draws nothing for it.
  item.symbol = symbol == tessarine::kEmptyCell ? QString() : fromCore(symbol);
  item.colorName = colorName(color);
  item.glyph = glyphFor(item.symbol, equation);
  item.spokenName = spokenName(item.symbol, item.colorName, equation);
  return item;
}

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
  hintsEnabled_ = host_.session() != nullptr && host_.session()->hintsButtonLive();
  emit changed();
}

void MainScreenModel::rebuildBoard() {
  const ContentView& view = host_.view();
  const int columns = std::max(view.gameLetters, 0);
  const int cells = std::min(view.gameRows * columns, tessarine::kMaximumCells);
  std::vector<TileItem> items;
  items.reserve(static_cast<std::size_t>(std::max(cells, 0)));
  for (int i = 0; i < cells; ++i) {
    TileItem item =
        tileItem(view.cellLetter[i], view.cellBackground[i], isEquation(view), view.presentation.colourBlind);
    item.borderWidth = view.cellBorderWidth[i];
    item.gridRow = i / columns;
    item.gridColumn = i % columns;
    item.rowLength = columns;
    items.push_back(std::move(item));
  }
  board_.setItems(std::move(items));
}

void MainScreenModel::rebuildKeypad() {
  const ContentView& view = host_.view();
  const int keys = std::min(view.keypadNumber, static_cast<int>(view.keypadLetters.size()));
  std::vector<TileItem> items;
  for (int i = 0; i < keys; ++i)
    items.push_back(tileItem(view.keypadLetters[i], view.keypadKeyColor[i], isEquation(view),
                             view.presentation.colourBlind));
  // The family's layout names more keys than a keypad that is not set up yet has.
  std::vector<std::vector<int>> rows;
  for (const auto& row : keyRows(view)) {
    rows.emplace_back();
    for (int key : row) {
      if (key < keys) rows.back().push_back(key);
    }
  }
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      TileItem& item = items[static_cast<std::size_t>(rows[row][column])];
      item.gridRow = static_cast<int>(row);
      item.gridColumn = static_cast<int>(column);
      item.rowLength = static_cast<int>(rows[row].size());
    }
  }
  for (int i = 0; i < keys; ++i) {
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

QStringList MainScreenModel::rowMarks() const {
  const ContentView& view = host_.view();
  QStringList marks;
  for (int row = 0; row < view.gameRows; ++row)
    marks << (view.showStarStatus ? fromCore(tessarine::rowMark(view, row).symbol) : QString());
  return marks;
}

QStringList MainScreenModel::rowMarkColors() const {
  const ContentView& view = host_.view();
  QStringList colors;
  for (int row = 0; row < view.gameRows; ++row)
    colors << fromCore(tessarine::rowMark(view, row).color);
  return colors;
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
  emit changed();
}

qreal MainScreenModel::cellWidth() const {
  const ContentView& view = host_.view();
  return tessarine::boardMetrics(view.gameType, view.useQWERTY, viewport_.width(), viewport_.height())
      .cellWidth;
}

qreal MainScreenModel::keypadWidth() const {
  const ContentView& view = host_.view();
  return tessarine::boardMetrics(view.gameType, view.useQWERTY, viewport_.width(), viewport_.height())
      .keypadWidth;
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
  QString symbol = typed.toUpper();
  if (symbol == QLatin1String("*")) symbol = QStringLiteral("X");
  const auto& keys = keypad_.items();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (keys[i].symbol == symbol && keys[i].live) {
      pressKey(static_cast<int>(i));
      return true;
    }
  }
  return false;
}

void MainScreenModel::touchCell(int cellIndex) {
  const ContentView& v = host_.view();
  if (v.gameLetters <= 0 || cellIndex / v.gameLetters != v.activeRow || !v.showKeypad) return;
  const int column = cellIndex % v.gameLetters;
  host_.act([column](Session& s) { s.touchCell(column); });
}

void MainScreenModel::clearCell() {
  host_.run(&Session::clearCell);
}
void MainScreenModel::clearRow() {
  host_.run(&Session::clearRow);
}
void MainScreenModel::moveCorrectLetters() {
  host_.run(&Session::moveCorrectLetters);
}
void MainScreenModel::submitGuess() {
  host_.run(&Session::submitGuess);
}
void MainScreenModel::pressHints() {
  if (hintsEnabled_) host_.run(&Session::pressHints);
}
