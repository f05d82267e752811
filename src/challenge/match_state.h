// Everything one device knows about a match: plain values, with its own board of eight shared rows
// (the initiator's guesses on even rows, the accepter's on odd ones).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "challenge/challenge_key.h"
#include "engine/board.h"
#include "engine/keypad.h"
#include "engine/knowledge.h"

namespace tessarine {

inline constexpr int kMatchRows = 8;
inline constexpr int kMatchCells = 64;

struct MatchState {
  std::string gameType = "C";
  int numPlayer = 1;
  int challengeIndex = 0;
  std::string challengeKey;
  bool EnglishWords = true;

  // The key pad of the accepting player.
  KeyCells codeNumber = emptyKey();
  int numCodeEntries = 0;
  int gameIndex = 0;
  int errorIndex = 0;
  bool invalidKeyEntry = false;

  Board board{kMatchCells};  // activeRow -1 while the accepter is at the key
  Keypad keypad;
  Knowledge knowledge;
  int numGuesses = kMatchRows;

  int currentPosition = 0, numCellEntries = 0;
  int numStrikes = 0, numBalls = 0;
  bool disableSubmit = true, showKeypad = true;
  bool enteringGuess = false, opponentGuess = false, waitingForGuess = false;
  bool youWonGame = false, opponentWonGame = false;
  bool smartModeError = false, invalidGuess = false, repeatedGuess = false, repeatedEntry = false;
  bool youWalked = false, youStruckOut = false, youMissedFinalGuess = false;
  bool opponentWalked = false, opponentStruckOut = false, opponentMissedFinalGuess = false;
  bool selectedGuessReceived = false, selectedFoundAnswer = false, selectedMissedFinalGuess = false;
  bool selectedWalked = false, selectedStuckOut = false, selectedIntentionalWalk = false;
  bool challengeStarted = false, opponentFirstGuessWalked = false;
  bool gameOver = false, resultsSaved = false;
  std::string playerLastGuess, opponentLastGuess, player8thGuess;
  std::string activeWord;

  int savedChallengeIndex = -1;   // store position of the saved match in hand, -1 for a new one
  std::int64_t savedEntryId = 0;  // its handle in the store, which outlives positions
  std::string savedName;

  int activeRow() const { return board.activeRow; }
  int lastRow() const { return numGuesses - 1; }

  static KeyCells emptyKey() {
    return {kEmptyCell, kEmptyCell, kEmptyCell, kEmptyCell, kEmptyCell, kEmptyCell};
  }
};

struct MatchFlagField {
  std::string_view name;
  bool MatchState::*field;
};

// The 23 flags a saved match stores, in their stored order.
const std::array<MatchFlagField, 23>& storedMatchFlags();

enum class MatchResult { win, loss, draw };

// Both found it, or neither: a draw.
inline MatchResult matchResult(const MatchState& m) {
  if (m.youWonGame == m.opponentWonGame) return MatchResult::draw;
  return m.youWonGame ? MatchResult::win : MatchResult::loss;
}

}  // namespace tessarine
