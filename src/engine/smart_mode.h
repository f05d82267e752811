// The colour-code checks: does the entered row (`activeRow`) use everything the rows above have
// shown? Each check returns true when the row passes and may mark offending cells red.
#pragma once

namespace tessarine {

struct Board;
struct RowMarkSet;

bool checkGreenTiles(Board& board);
bool checkBlueTiles(Board& board);
bool checkGrayTiles(Board& board);
bool checkYellowTiles(Board& board);

// The four checks in their fixed order, stopping at the first failure.
bool passesSmartMode(Board& board);

// Every played row kept the colour code and took no hint: the gold star beside the score.
bool isPerfectGame(const RowMarkSet& marks, int activeRow, int gameRows);

}  // namespace tessarine
