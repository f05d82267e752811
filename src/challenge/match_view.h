// What the match screen shows, as plain values derived from the state: a screen draws these and
// forwards touches to `Match`, and holds no rule of its own.
#pragma once

#include <string>
#include <vector>

#include "challenge/challenge_key.h"
#include "engine/board.h"
#include "engine/keypad.h"

namespace tessarine {

enum class MatchChoice { guessReceived, foundAnswer, walked, struckOut, missedAnswer };

struct MatchChoiceButton {
  MatchChoice choice;
  std::string label;
};

struct MatchView {
  bool atKey = false;  // the key pad and its six cells replace the board
  KeyCells keyCells;
  const Board* board = nullptr;
  const Keypad* keypad = nullptr;
  bool showKeypad = false, submitEnabled = false;
  bool showChoices = false;  // the choices and the share button
  std::vector<MatchChoiceButton> choices;
  bool showWalkButton = false, walkSelected = false, showUndo = false, showTrash = false;
  bool showQuestion = false;  // the opponent's text can't be right
  int ballLamps = 0, strikeLamps = 0;
  std::string titleLine, statusLine, statusSecondLine;
  // The key's six digits while the title line is the key, for a screen that draws keycaps itself
  // (an emoji font may split a keycap emoji into its digit and a box); empty otherwise.
  std::string titleKeyDigits;
  std::string sendLabel;
  bool gameOver = false;
  // The buttons that stand only at some moments: accept (before the first guess), save (a match
  // under way), paste (at the key, or for the opponent's guess).
  bool offersAccept = false, offersSave = false, offersPaste = false;
  std::string banner, bannerAnswer;
};

}  // namespace tessarine
