// The game types as the options sheet presents them: four groups of buttons named in the
// player's language, each button knowing which type it selects from where the player is now.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/seventh_view.h"

namespace tessarine {

enum class ItemAction { selectType, english, espanol };

struct GroupItem {
  std::string_view label;
  ItemAction action;
  std::string gameType;  // the type `selectType` chooses; empty for the language buttons
  bool selected;
};

struct GameGroup {
  std::string_view label;
  std::string gameType;  // the type that choosing the group starts on
  bool selected;         // the present type belongs to the group
  std::vector<GroupItem> items;
};

// Words (with the language buttons and the lengths offered in the chosen language), genius words,
// numbers (digits, then all or primes only) and equations (tiles, then the two operator switches).
std::vector<GameGroup> gameGroups(const SeventhView& view);

void chooseGroup(SeventhView& view, const GameGroup& group);
void chooseItem(SeventhView& view, const GroupItem& item);

}  // namespace tessarine
