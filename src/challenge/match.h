// The one front door of a two-player challenge on this device: the key, the turn engine, the
// choices that report what the opponent did, the saved matches and the texts a screen shows.
// Plain values in, plain values out; a screen binds to `state()` and `view()`.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "challenge/challenge_records.h"
#include "challenge/match_fills.h"
#include "challenge/match_state.h"
#include "challenge/match_view.h"

namespace tessarine {

class Lists;
class RandomSource;

class Match {
 public:
  Match(const Lists& lists, DataManager& store, RandomSource& random, bool englishTranslation);

  // Opening: the initiator of a new match (answer drawn past the answers used lately), the
  // accepting player at the key, or a saved match of the scan's list.
  void openChallenge(const std::string& gameType, bool deleteLastChallengeScore = false);
  void acceptChallenge();
  bool continueSaved(int choice);
  bool deleteSaved(int choice);
  const ChallengeScan& scan() const { return scan_; }
  void rescan(const std::string& gameType);

  // The key pad of the accepting player.
  void enterKeyDigit(int digit);
  void clearKeyCell();
  void clearKey();

  // The board row.
  void enterSymbol(const std::string& symbol);
  void clearCell();
  void clearRow();
  void touchCell(int column);
  void submitRow();

  // Whole entries at once: six key digits, or a word from the row's first cell (false, and
  // nothing typed, when it does not fit). Submit stays with the player.
  bool typeKey(const std::string& digits);
  bool typeWord(const std::string& word);
  bool canTypeReceivedGuess() const;
  // Fills the key or the received guess from a pasted text; the message to show when it can't.
  std::string paste(std::string_view text);

  // What the opponent did, while waiting; and the own turn's walk.
  void chooseGuessReceived();
  void chooseFoundAnswer() { chooseSignal(SignalMove::foundAnswer); }
  void chooseWalked() { chooseSignal(SignalMove::walked); }
  void chooseStruckOut() { chooseSignal(SignalMove::struckOut); }
  void chooseMissedAnswer() { chooseSignal(SignalMove::missedFinalGuess); }
  void chooseIntentionalWalk();
  void cancelIntentionalWalk();
  void undoChoice();
  std::vector<MatchChoice> offeredChoices() const;

  // Saving with a name (nothing, or the message to show), and leaving without one.
  std::optional<std::string> saveMatch(const std::string& typedName);
  void leave();

  const MatchState& state() const { return m_; }
  MatchView view() const;
  // What the send button sends: the move while the match runs, the result once it is over. Built
  // only when sent, not on every refresh.
  std::string shareText() const;
  bool english() const { return english_; }
  const Lists& lists() const { return lists_; }

 private:
  // Turn engine pieces (match_turn.cpp, match_received.cpp).
  void acceptKey();
  void submitReceived();
  void submitReceivedGuess();
  void submitOwn();
  void submitOwnGuess();
  void walkOut(bool keepLastGuess);
  void strikeOut();
  void loseTurn(bool walked);
  void endOrGiveFinalGuess(bool afterFound);
  void endMatch();
  void showLastRow();
  void closeRow();
  void closeTurn();
  void clearTurnFlags();
  void chooseSignal(SignalMove move);

  // Board helpers (match_board.cpp).
  void applyGameType();
  void prepareRow();
  void writeRow(const std::vector<std::string>& symbols);
  void writeWord(const std::string& word);
  void paintRow(TileColor color);
  void scoreActiveRow();
  void rescoreRowAbove();
  void colourKeypad();
  void carryForward();
  void placeCursor();
  int neededEntries() const;
  bool wasGuessUsed() const;
  bool validGuess() const;
  void replaySaved();

  const Lists& lists_;
  ChallengeRecords records_;
  RandomSource& random_;
  bool english_;
  MatchState m_;
  ChallengeScan scan_;
};

}  // namespace tessarine
