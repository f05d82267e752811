#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/tile_color.h"
#include "storage/entry.h"

namespace tessarine {

constexpr int kMaximumCells = 56;
constexpr int kMarkedRows = 6;
constexpr int kKeypadSize = 27;
constexpr int kScoreSlots = 8;
constexpr int kLatestScores = 10;
constexpr const char* kEmptyCell = "   ";

using RowMarks = std::array<bool, kMarkedRows>;

// The state of the main screen. Plain values only: every action ends in a refresh that rebuilds the
// board, the marks, the keys and the hint knowledge from the stored day records. The stores
// themselves are owned by the session that holds this record.
struct ContentView {
  // Last fetch of each store.
  std::vector<Entry> cellEntries, settingEntries, bonusEntries;

  // Build-time switches; false in every build.
  bool deleteCoreDataValues = false;
  bool noMinimumDay = false;
  std::string newMinimumDayValue = "0000";
  bool removeBonusRecord = false;
  bool playFutureGames = false;

  // The player's options, persisted in the settings record.
  bool smartMode = false;
  bool prepopulate = false;
  bool EnglishWords = true;
  bool EnglishTranslation = true;
  bool showDefinitions = true;
  bool wantHints = false;
  bool showStarStatus = false;
  bool useQWERTY = true;

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

  // The board, row-major: cell = row * gameLetters + column.
  std::array<std::string, kMaximumCells> cellLetter = filled<std::string, kMaximumCells>(kEmptyCell);
  std::array<TileColor, kMaximumCells> cellBackground = filled<TileColor, kMaximumCells>(TileColor::white);
  std::array<double, kMaximumCells> cellBorderWidth = initialBorders();

  std::array<std::string, kKeypadSize> keypadLetters =
      filled<std::string, kKeypadSize>(" ");  // 27: the Spanish keypad has Ñ
  int keypadNumber = 0;
  std::array<TileColor, kKeypadSize> keypadKeyColor = filled<TileColor, kKeypadSize>(TileColor::white);

  // Per-row marks, index = board row - 1.
  RowMarks smartModeCorrect{};
  RowMarks smartModeError{};
  RowMarks validGuessError{};
  RowMarks usedHints{};
  RowMarks singleHint{};

  int gameRows = 6;
  int gameLetters = 4;
  int maximumCells = kMaximumCells;
  int minimumDayIndex = 0;
  std::string oldMinimumDay = "April 1, 2022";
  std::string newMinimumDay = "April 1, 2022";
  std::array<int, 7> mathRow = {0, 1, 2, 3, 4, 5, 6};

  int currentPosition = 0;
  int numCellEntries = 0;
  int activeDate = 0;
  int activeRow = 0;
  std::string activeWord = kEmptyCell;

  // Statistics of the shown game type.
  std::array<int, kScoreSlots> scoreInt{};
  std::array<int, kLatestScores> latestTenScores{};
  int gamesPlayed = 0;
  int gamesCompleted = 0;
  int latestScoreDate = 1;  // offsets from today; 1 means none
  int latestWinDate = 1;
  int latestUnfinishedDate = 1;
  int latestAvailableDate = 1;
  int latestScore = 0;
  int currentStreakStart = 2;
  int maxStreakStart = 2;
  int maxStreakEnd = 1;
  int latestDateIndex = 0;

  int ChristmasDateIndex = 633;
  int ChristmasDayBonusValue = 20;
  std::string ChristmasMessage = kChristmasMessage;

  std::vector<int> dateAscending, dateDescending;
  std::vector<int> scoreAscendingAscending, scoreDescendingAscending;
  std::vector<int> scoreAscendingDescending, scoreDescendingDescending;
  std::vector<std::string> allDatesInfo;  // index = -activeDate

  // Hint knowledge, derived after every accepted row and never stored.
  std::vector<std::string> grayLetters;
  std::vector<int> grayLetterRanking;
  std::vector<std::string> greenLetters;
  std::vector<int> greenLetterPosition;
  std::vector<std::string> hintLettersUnique;
  std::vector<int> hintLettersExact, hintLettersLower, hintLettersUpper;
  std::vector<int> hintOpenPosition, yellowClosePosition;
  std::vector<std::vector<int>> hintOpenGroups;
  std::vector<std::string> yellowLetters;
  std::vector<std::vector<int>> yellowCloseGroups;
  int numberOfGreen = 0, numberOfBlue = 0, numberOfYellow = 0, numberOfOrange = 0;
  int numberOfExact = 0, numberOfLower = 0, numberOfUpper = 0;

  // The hint engine's own state; it outlives a reload of the same day.
  std::vector<std::string> allHints;
  std::vector<std::string> firstHints;
  std::string hintsGameType = "Ó";
  int hintsGameDate = -1;
  int hintsGuess = 0;
  int numberOfHints = -1;  // -1: no filtering done for this day
  int numberOfAvailableHints = 0;
  bool displayHintsNumbers = false;
  bool showHintDefinition = false;

  std::string thankYou = " ";
  bool thankYouFlag = false;

  std::string gameType = "Ó";
  std::string typeOfGame = "Z";
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

  static constexpr const char* kChristmasMessage =
      "We hope you'll enjoy playing a little Tessarine as you sit by the fire, sipping a little eggnog, "
      "and basking in the warm, holiday glow. May you experience the blessings of hope, peace, joy and "
      "love that the holiday season has to offer.\n\nWishing you and yours a very Merry Christmas and a "
      "Happy and Prosperous New Year.";

 private:
  template <typename T, std::size_t N>
  static std::array<T, N> filled(const T& value) {
    std::array<T, N> result;
    result.fill(value);
    return result;
  }
  static std::array<double, kMaximumCells> initialBorders() {
    auto borders = filled<double, kMaximumCells>(1.0);
    borders[0] = 4.0;
    return borders;
  }
};

}  // namespace tessarine
