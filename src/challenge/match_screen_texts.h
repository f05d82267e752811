// The fixed words of the match screen and its dialogs, in the player's language, so that the
// screen itself holds no text of its own.
#pragma once

#include <string>

namespace tessarine {

struct MatchScreenTexts {
  std::string heading;                // above the board
  std::string balls, strikes;         // under the lamps
  std::string acceptChallenge;        // switches to the key pad
  std::string pasteMessage;           // reads a received text from the clipboard
  std::string saveTitle, namePrompt;  // the save dialog
  std::string save, cancel, remove;   // dialog buttons
  std::string deleteTitle;            // asked before a saved match is deleted
  std::string selectTitle, selectButton;
  std::string continueSaved;  // one saved match: its button
};

MatchScreenTexts matchScreenTexts(const std::string& gameType, bool english);

}  // namespace tessarine
