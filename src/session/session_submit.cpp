// Submitting a row, and the Hints confirmation that fills and stores a row in its place. Rows are
// never scored here: the refresh replays the stored record and colours every row.
#include "catalogue/catalogue.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine/scoring.h"
#include "engine/smart_mode.h"
#include "engine/validation.h"
#include "session/session.h"

namespace tessarine {

void Session::finishWonRow() {
  view_.disableGreenButton = true;
  fillRow(view_, TileColor::green);
  view_.cellBorderWidth[view_.currentPosition] = 1.0;
  storeDay(view_.activeRow + 1, false);
  reloadDay(true, true);
  view_.showKeypad = false;
}

void Session::knowledgeUpdate() {
  // The row just stored was scored by the replay but `activeRow` already counts it.
  view_.activeRow -= 1;
  refreshKnowledge();
  view_.activeRow += 1;
}

void Session::submitGuess() {
  ContentView& v = view_;
  if (!v.showKeypad || !boardMatchesStore()) return;
  v.activeWord = rowWord(v, v.activeRow);
  if (v.numCellEntries == 0) return;
  const int markRow = v.activeRow - 1;  // marks are indexed by board row - 1
  const std::string entry = v.activeWord;
  SmartModeFailure failure;
  if (!isValidGuess(v.gameType, lists_, v.activeWord)) {
    fillRow(v, TileColor::cyan);
    if (markRow >= 0 && !v.smartModeError[markRow]) v.validGuessError[markRow] = true;
    storeDay(0, false);
    reloadDay(false, false);
    v.refusal = {RefusalKind::invalid, entry, {}};
  } else if (isWin(v, v.activeWord)) {
    // The win test comes before Smart Mode: a winning row that breaks the colour code still wins.
    if (markRow >= 0) v.smartModeCorrect[markRow] = true;
    finishWonRow();
  } else if (wasUsedBefore(v, v.activeWord)) {
    fillRow(v, TileColor::purple);  // nothing is stored
    v.refusal = {RefusalKind::repeated, entry, {}};
  } else if (markRow >= 0 && v.smartMode && !passesSmartMode(v, &failure)) {
    v.smartModeError[markRow] = true;
    v.usedHints[markRow] = false;
    storeDay(0, true);
    reloadDay(false, false);
    v.refusal = {RefusalKind::smartMode, entry, failure};
  } else {
    if (markRow >= 0 && passesSmartMode(v)) v.smartModeCorrect[markRow] = true;
    if (v.activeRow == v.gameRows - 1) {
      storeDay(v.activeRow + 2, false);
      reloadDay(true, true);
      v.showKeypad = false;
    } else {
      storeDay(0, false);
      rowJustAccepted_ = true;
      reloadDay(false, false);
      rowJustAccepted_ = false;
      v.disableSubmit = true;
      knowledgeUpdate();
      v.cellBorderWidth[v.currentPosition] = 1.0;
      v.numCellEntries = 0;
      v.currentPosition = v.activeRow * v.gameLetters;
      v.cellBorderWidth[v.currentPosition] = 4.0;
    }
  }
  v.disableCurrent = v.activeDate == 0;
}

bool Session::hintsButtonLive() const {
  const ContentView& v = view_;
  return v.showKeypad && !v.disableHints && v.wantHints && v.activeRow > 0 && v.numberOfAvailableHints > 0 &&
         hasHints(v.gameType);
}

void Session::pressHints() {
  if (hintsButtonLive()) view_.showHintsAlert = true;
}

void Session::dismissHintsAlert() {
  view_.showHintsAlert = false;
}

void Session::confirmHint() {
  ContentView& v = view_;
  v.showHintsAlert = false;
  if (!v.showKeypad || v.activeRow < 1 || !boardMatchesStore()) return;
  const std::string hint = drawHint(v, v.answer, random_);
  if (rowWord(v, v.activeRow) != hint) {
    const std::vector<std::string> symbols = splitSymbols(hint);
    const int first = v.activeRow * v.gameLetters;
    for (int column = 0; column < v.gameLetters && column < static_cast<int>(symbols.size()); ++column) {
      v.cellBorderWidth[v.currentPosition] = 1.0;
      v.currentPosition = first + column;
      enterSymbol(symbols[column]);
    }
  }
  const int markRow = v.activeRow - 1;
  v.usedHints[markRow] = true;
  if (v.numberOfHints == 1) {
    // The one candidate left is the answer: the game is won at once.
    v.singleHint[markRow] = true;
    finishWonRow();
  } else {
    storeDay(0, true);
    reloadDay(false, false);
  }
}

}  // namespace tessarine
