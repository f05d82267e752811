// How the game is drawn, apart from what it means: choices that change no rule and no day record.
//
// They live in their own record of the settings store, between the minimum day and the options:
// an older version that finds three records reads its options from the third and deletes the
// second, so it keeps the player's options and only forgets these choices. A store whose player
// never changed them keeps the two records of old.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

struct Presentation {
  bool colourBlind = false;  // a pattern on each scoring colour, so no hint rests on colour alone

  friend bool operator==(const Presentation&, const Presentation&) = default;
};

// "#" and then one "Y"/"N" flag a choice; later choices append flags, and a missing one is off.
// No game type is "#", so the record cannot be mistaken for an options record.
std::string presentationRecord(const Presentation& presentation);
bool isPresentationRecord(std::string_view text);
Presentation parsePresentationRecord(std::string_view text);

}  // namespace tessarine
