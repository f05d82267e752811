#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/board.h"
#include "engine/hints.h"
#include "engine/keypad.h"
#include "engine/knowledge.h"
#include "engine/row_marks.h"
#include "engine/smart_mode.h"
#include "session/christmas_texts.h"
#include "statistics/statistics.h"
#include "storage/entry.h"
#include "storage/options.h"
#include "storage/presentation.h"

namespace tessarine {

constexpr int kMaximumCells = 56;

// Why the active row was last refused, for the line under the board. It lasts until the row or
// the day changes.
enum class RefusalKind { none, invalid, repeated, smartMode };
struct Refusal {
  RefusalKind kind = RefusalKind::none;
  std::string entry;           // the row as typed
  SmartModeFailure smartMode;  // for a Smart Mode refusal: the first failed check and its symbol
};

// The state of the main screen. Plain values only: every action ends in a refresh that rebuilds the
// board, the marks, the keys and the hint knowledge from the stored day records. The stores
// themselves are owned by the session that holds this record.
//
// The record is made of the parts the rules work on (the options, the board with its answer, the
// keys, the row marks, the knowledge, the hint state, the statistics), so that each rule takes only
// the part it needs and a match can own the same parts; the fields keep their flat names.
struct ContentView : Options, Board, Keypad, RowMarkSet, Knowledge, HintState, Statistics {
  ContentView() : Board(kMaximumCells) {}

  Options& options() { return *this; }
  const Options& options() const { return *this; }
  StatisticsScope statisticsScope() const {
    return {gameType, gameRows, minimumDayIndex, EnglishTranslation, thankYouFlag, latestDateIndex};
  }

  // Drawing choices kept beside the options; no rule reads them.
  Presentation presentation;
  Refusal refusal;

  // Last fetch of each store.
  std::vector<Entry> cellEntries, settingEntries, bonusEntries;

  // Build-time switches; false in every build.
  bool deleteCoreDataValues = false;
  bool noMinimumDay = false;
  std::string newMinimumDayValue = "0000";
  bool removeBonusRecord = false;
  bool playFutureGames = false;

  bool showKeypad = true;
  bool disableSubmit = true;
  bool disableHints = true;
  bool disableGreenButton = true;
  bool disableCurrent = true;
  bool disableFirst = true;
  bool disablePlusKey = false;
  bool disableMinusKey = false;
  bool disableMultiplyKey = false;
  bool disableDivideKey = false;

  int minimumDayIndex = 0;
  std::string oldMinimumDay = "April 1, 2022";
  std::string newMinimumDay = "April 1, 2022";
  std::array<int, 7> mathRow = {0, 1, 2, 3, 4, 5, 6};

  int currentPosition = 0;
  int numCellEntries = 0;
  int activeDate = 0;
  std::string activeWord = kEmptyCell;
  int latestDateIndex = 0;

  int ChristmasDateIndex = 633;
  int ChristmasDayBonusValue = 20;
  std::string ChristmasMessage = kChristmasMessage;

  bool displayHintsNumbers = false;
  bool showHintDefinition = false;

  std::string thankYou = " ";
  bool thankYouFlag = false;

  std::string pickingUp = "7";

  // Signals to the screen.
  bool updateSettings = false;
  bool showAlert4 = false;
  bool showHintsAlert = false;

  int selectedDateIndex = 0;
  bool selectingDate = false;

  // Sizes from the screen, in logical pixels.
  double cellWidth = 0, keypadWidth = 0, secondRowWidth = 0, firstRowWidth = 0;
  double fontSize = 0, fontSizeDefinition = 0, symbolWidth = 0, startButtonWidth = 0;
  double marginSize = 0, systemHeight = 0;
};

}  // namespace tessarine
