// The colour-code checks: does the entered row (`activeRow`) use everything the rows above have
// shown? Each check returns true when the row passes and may mark offending cells red.
#pragma once

#include <string>

namespace tessarine {

struct Board;
struct RowMarkSet;

bool checkGreenTiles(Board& board);
bool checkBlueTiles(Board& board);
bool checkGrayTiles(Board& board);
bool checkYellowTiles(Board& board);

// What the first failed check found, in the classes that the player is told about.
enum class SmartModeClass {
  greenNotKept,
  grayUsedAgain,
  yellowSameSpot,
  yellowDropped,
  blueNotIncreased,
  orangeNotReduced
};
struct SmartModeFailure {
  SmartModeClass kind = SmartModeClass::greenNotKept;
  std::string symbol;
  friend bool operator==(const SmartModeFailure&, const SmartModeFailure&) = default;
};

// The four checks in their fixed order, stopping at the first failure, which `why` receives.
bool passesSmartMode(Board& board, SmartModeFailure* why = nullptr);

// Every played row kept the colour code and took no hint: the gold star beside the score.
bool isPerfectGame(const RowMarkSet& marks, int activeRow, int gameRows);

}  // namespace tessarine
