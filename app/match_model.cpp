#include "match_model.h"

#include <algorithm>

#include "board_presentation.h"
#include "challenge/challenge_records.h"
#include "challenge/match_screen_texts.h"
#include "core_text.h"
#include "screens/board_sizes.h"
#include "session_host.h"
#include "share_sink.h"
#include "tile_items.h"

using tessarine::Match;
using tessarine::Session;

namespace {

// The ten-key pad of the key, laid out as on a phone.
std::vector<TileItem> digitPadItems() {
  std::vector<TileItem> items;
  for (int i = 0; i < 10; ++i) {
    const int digit = (i + 1) % 10;
    TileItem item = tileItem(std::to_string(digit), tessarine::TileColor::white, false);
    item.gridRow = i / 3;
    item.gridColumn = i % 3;
    item.rowLength = i < 9 ? 3 : 1;
    items.push_back(std::move(item));
  }
  return items;
}

}  // namespace

MatchModel::MatchModel(SessionHost& host)
    : QObject(&host), host_(host), texts_(this), board_(this), keypad_(this), digitPad_(this) {
  digitPad_.setItems(digitPadItems());
  connect(host.mainScreen(), &MainScreenModel::resized, this, &MatchModel::relayout);
}

MatchModel::~MatchModel() = default;

void MatchModel::build(Session& session) {
  const bool english = session.view().EnglishTranslation;
  if (match_ == nullptr || match_->english() != english)
    match_ = std::make_unique<Match>(session.lists(), session.challengeStore(), session.random(), english);
}

std::string MatchModel::gameTypeOr(const QString& gameType) const {
  return gameType.isEmpty() ? host_.view().gameType : gameType.toStdString();
}

void MatchModel::act(const std::function<void(Match&)>& action) {
  if (match_ == nullptr || !open_) return;
  message_.clear();
  host_.act([this, &action](Session&) { action(*match_); });
}

void MatchModel::relayout() {
  const MainScreenModel& screen = *host_.mainScreen();
  const tessarine::BoardMetrics metrics =
      screen.windowMetrics(match_ != nullptr ? match_->state().gameType : host_.view().gameType);
  // Eight rows and the keypad share the screen: the rows take at most two fifths of it.
  const qreal cellWidth =
      std::min<qreal>(metrics.cellWidth, screen.viewport().height() * 0.4 / tessarine::kMatchRows - 4);
  if (cellWidth == cellWidth_ && metrics.keypadWidth == keyWidth_) return;
  cellWidth_ = cellWidth;
  keyWidth_ = metrics.keypadWidth;
  emit sizesChanged();
}

void MatchModel::refresh() {
  relayout();
  // A closed match does not follow the main game's key presses; opening it refreshes again.
  if (!active()) {
    emit changed();
    return;
  }
  view_ = match_->view();
  const tessarine::MatchState& m = match_->state();
  texts_.load(m.gameType, english());
  board_.setItems(boardItems(m.board, m.numGuesses));
  std::vector<TileItem> keys = keypadItems(
      m.keypad, keyRows(m.keypad, m.board.typeOfGame, host_.view().useQWERTY), m.board.typeOfGame == "E");
  for (TileItem& key : keys)
    key.live = key.colorName != QLatin1String("black");
  keypad_.setItems(std::move(keys));
  emit changed();
}

QStringList MatchModel::keyCells() const {
  QStringList cells;
  for (const std::string& cell : view_.keyCells)
    cells << (cell == tessarine::kEmptyCell ? QString() : fromCore(cell));
  return cells;
}

int MatchModel::keyCursor() const {
  return match_ != nullptr && view_.atKey ? match_->state().currentPosition : -1;
}

QStringList MatchModel::choiceLabels() const {
  QStringList labels;
  for (const auto& choice : view_.choices)
    labels << fromCore(choice.label);
  return labels;
}

bool MatchModel::canAccept() const {
  return active() && view_.offersAccept;
}

bool MatchModel::canSave() const {
  return active() && view_.offersSave;
}

bool MatchModel::canPaste() const {
  return active() && view_.offersPaste;
}

QString MatchModel::titleLine() const {
  return fromCore(view_.titleLine);
}

QString MatchModel::titleKeyDigits() const {
  return fromCore(view_.titleKeyDigits);
}
QString MatchModel::statusLine() const {
  return fromCore(view_.statusLine);
}
QString MatchModel::statusSecondLine() const {
  return fromCore(view_.statusSecondLine);
}
QString MatchModel::sendLabel() const {
  return fromCore(view_.sendLabel);
}
QString MatchModel::banner() const {
  return view_.gameOver ? fromCore(view_.banner) : QString();
}
QString MatchModel::bannerAnswer() const {
  return view_.gameOver ? fromCore(view_.bannerAnswer) : QString();
}

QStringList MatchModel::savedNames() const {
  return match_ != nullptr ? fromCoreList(match_->scan().savedChallengesName) : QStringList();
}

QString MatchModel::statisticsTitle() const {
  return match_ != nullptr
             ? fromCore(tessarine::challengeStatisticsTitle(match_->state().gameType, english()))
             : QString();
}

QStringList MatchModel::statisticsLines() const {
  return match_ != nullptr ? fromCoreList(tessarine::challengeStatisticsLines(match_->scan(), english()))
                           : QStringList();
}

void MatchModel::open(const QString& gameType) {
  const std::string type = gameTypeOr(gameType);
  message_.clear();
  host_.act([this, &type](Session& s) {
    build(s);
    match_->openChallenge(type);
    open_ = true;
  });
}

void MatchModel::openStatistics(const QString& gameType) {
  const std::string type = gameTypeOr(gameType);
  host_.act([this, &type](Session& s) {
    build(s);
    // The statistics screen reads the scan; a match in hand keeps its own game type.
    if (!open_) match_->openChallenge(type);
    match_->rescan(match_->state().gameType);
  });
}

void MatchModel::accept() {
  if (canAccept()) act([](Match& m) { m.acceptChallenge(); });
}

void MatchModel::continueSaved(int choice) {
  act([choice](Match& m) { m.continueSaved(choice); });
}

void MatchModel::deleteSaved(int choice) {
  act([choice](Match& m) { m.deleteSaved(choice); });
}

void MatchModel::pressDigit(int keyIndex) {
  const auto& keys = digitPad_.items();
  if (keyIndex < 0 || keyIndex >= static_cast<int>(keys.size())) return;
  const int digit = keys[static_cast<std::size_t>(keyIndex)].symbol.toInt();
  act([digit](Match& m) { m.enterKeyDigit(digit); });
}

void MatchModel::pressKey(int keyIndex) {
  const auto& keys = keypad_.items();
  if (keyIndex < 0 || keyIndex >= static_cast<int>(keys.size()) || !keys[keyIndex].live) return;
  const std::string symbol = match_->state().keypad.keypadLetters[static_cast<std::size_t>(keyIndex)];
  act([&symbol](Match& m) { m.enterSymbol(symbol); });
}

bool MatchModel::typeText(const QString& typed) {
  if (!active()) return false;
  if (!view_.atKey && !view_.showKeypad) return false;
  const int key = (view_.atKey ? digitPad_ : keypad_).liveIndexOf(typed);
  if (key < 0) return false;
  view_.atKey ? pressDigit(key) : pressKey(key);
  return true;
}

void MatchModel::touchCell(int cellIndex) {
  if (!active()) return;
  const tessarine::Board& b = match_->state().board;
  if (b.gameLetters <= 0 || cellIndex / b.gameLetters != b.activeRow) return;
  const int column = cellIndex % b.gameLetters;
  act([column](Match& m) { m.touchCell(column); });
}

void MatchModel::clearCell() {
  act([](Match& m) { m.state().activeRow() == -1 ? m.clearKeyCell() : m.clearCell(); });
}

void MatchModel::clearRow() {
  act([](Match& m) { m.state().activeRow() == -1 ? m.clearKey() : m.clearRow(); });
}

void MatchModel::submit() {
  if (view_.submitEnabled) act([](Match& m) { m.submitRow(); });
}

void MatchModel::choose(int choiceIndex) {
  if (choiceIndex < 0 || choiceIndex >= static_cast<int>(view_.choices.size())) return;
  const tessarine::MatchChoice choice = view_.choices[static_cast<std::size_t>(choiceIndex)].choice;
  act([choice](Match& m) {
    switch (choice) {
      case tessarine::MatchChoice::guessReceived:
        return m.chooseGuessReceived();
      case tessarine::MatchChoice::foundAnswer:
        return m.chooseFoundAnswer();
      case tessarine::MatchChoice::walked:
        return m.chooseWalked();
      case tessarine::MatchChoice::struckOut:
        return m.chooseStruckOut();
      case tessarine::MatchChoice::missedAnswer:
        return m.chooseMissedAnswer();
    }
  });
}

void MatchModel::toggleWalk() {
  if (!view_.showWalkButton) return;
  const bool selected = view_.walkSelected;
  act([selected](Match& m) { selected ? m.cancelIntentionalWalk() : m.chooseIntentionalWalk(); });
}

void MatchModel::undo() {
  if (view_.showUndo) act([](Match& m) { m.undoChoice(); });
}

void MatchModel::send() {
  // The question button sends the query while the opponent's guess is refused.
  if (!active() || !(view_.showChoices || view_.showQuestion)) return;
  // The share sheet says when the text is copied; the match screen has nothing to add.
  host_.share(match_->shareText());
}

void MatchModel::sendStatistics() {
  if (match_ != nullptr)
    host_.share(tessarine::challengeStatisticsText(match_->scan(), match_->state().gameType, english()));
}

void MatchModel::paste() {
  if (!active()) return;
  const std::string pasted = readPastedText().toStdString();
  std::string problem;
  act([&pasted, &problem](Match& m) { problem = m.paste(pasted); });
  if (!problem.empty()) {
    message_ = fromCore(problem);
    emit changed();
  }
}

bool MatchModel::save(const QString& name) {
  if (!canSave()) return false;
  const std::string typed = name.toStdString();
  std::optional<std::string> problem;
  act([&typed, &problem](Match& m) { problem = m.saveMatch(typed); });
  if (problem) {
    message_ = fromCore(*problem);
    emit changed();
    return false;
  }
  open_ = false;
  emit changed();
  return true;
}

void MatchModel::leave() {
  if (active() && !view_.gameOver) act([](Match& m) { m.leave(); });
  open_ = false;
  message_.clear();
  emit changed();
}
