#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tessarine {

enum class GameKind { englishWords, spanishWords, geniusWords, primeNumbers, allNumbers, equations };

// Which operator keys an equation type keeps; the others are switched off.
enum class OperatorSet { none, all, addSubtract, multiplyDivide };

// One row of the game table. Every decision by game type is a lookup here, never a chain of tests.
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
  OperatorSet operators;
  bool hints;                        // word games and the prime games
  std::string_view translationFile;  // Spanish answers with their English text; empty for others
  std::string_view gameShareCode;    // header code of the game text; kNoShareCode when it has none
  std::string_view statisticsShareCode;
  int typeNumber;  // as the challenge key carries it; 0 for a type it cannot carry

  bool isEquation() const { return kind == GameKind::equations; }
  bool isWordGame() const {
    return kind == GameKind::englishWords || kind == GameKind::spanishWords || kind == GameKind::geniusWords;
  }
};

inline constexpr int kKeypadSize = 27;  // the Spanish keypad has Ñ

// What each key shows (unused slots a single blank) and how many keys are live.
struct KeypadLayout {
  std::array<std::string_view, kKeypadSize> letters;
  int number;
};

// The 29 playable types in the order of the table.
std::span<const GameTypeInfo> gameCatalogue();

// The row of a type, or nullptr for a value outside the table ("Ó" among them).
const GameTypeInfo* findGameType(std::string_view gameType);

// Shorthands for the questions asked most; a value outside the table answers no.
bool isEquationType(std::string_view gameType);
bool hasHints(std::string_view gameType);

// The keypad of a type; a value outside the table gets 26 keys that all read "X".
KeypadLayout keypadLayout(const GameTypeInfo* info);

// The share code of a type without one of its own, and of a value outside the table.
inline constexpr std::string_view kNoShareCode = "XX";

// Board size of a value outside the table.
inline constexpr int kFallbackTiles = 5;
inline constexpr int kFallbackRows = 6;

// The golf name of a score, indexed by the 0-based row; a single blank past the list's end. A type
// outside the table has no names: every row reads `kNoScoreName`, in both languages.
inline constexpr std::string_view kNoScoreName = "X over/under Par";
std::string_view scoreName(int row, std::string_view gameType, bool englishTranslation);

}  // namespace tessarine
