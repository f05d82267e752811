// The colour-code checks: does the entered row (`activeRow`) use everything the rows above have
// shown? Each check returns true when the row passes and may mark offending cells red.
#pragma once

namespace tessarine {

struct ContentView;

bool checkGreenTiles(ContentView& view);
bool checkBlueTiles(ContentView& view);
bool checkGrayTiles(ContentView& view);
bool checkYellowTiles(ContentView& view);

// The four checks in their fixed order, stopping at the first failure.
bool passesSmartMode(ContentView& view);

// Every played row kept the colour code and took no hint: the gold star beside the score.
bool isPerfectGame(const ContentView& view);

}  // namespace tessarine
