#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tessarine {

struct ContentView;

enum class GameKind { englishWords, spanishWords, geniusWords, primeNumbers, allNumbers, equations };

// One row of the game table. Every decision by game type starts here.
struct GameTypeInfo {
  std::string_view gameType;  // one character; "Ñ" is two bytes of UTF-8
  GameKind kind;
  std::string_view typeOfGame;  // "L", "N" or "E"
  int tiles;
  int rows;
  int par;
  std::string_view answerFile;    // empty when the type has no list
  int modulus;                    // 0 when the type has no list
  std::string_view validityFile;  // empty when no list is consulted
};

// The 29 playable types in the order of the table.
std::span<const GameTypeInfo> gameCatalogue();

// The row of a type, or nullptr for a value outside the table ("Ó" among them).
const GameTypeInfo* findGameType(std::string_view gameType);

bool isEquationType(std::string_view gameType);
// Word games and the prime games are the ones with hints.
bool hasHints(const ContentView& view);

// Sets the keypad, family, board size, `pickingUp` and the operator flags from `gameType`.
// A value outside the table gets the fall-back: 5 tiles, 6 rows, 26 keys that all read "X".
void applyCatalogue(ContentView& view);

// The golf name of a score, indexed by the 0-based row; a single blank past the list's end.
std::string_view scoreName(int row, std::string_view gameType, bool englishTranslation);

}  // namespace tessarine
