#include "engine/game_type.h"

#include <string>

namespace tessarine {

void applyGameType(Board& board, Keypad& keypad, const GameTypeInfo* info, std::optional<int> rows) {
  keypad.applyLayout(keypadLayout(info));
  board.gameLetters = info != nullptr ? info->tiles : kFallbackTiles;
  board.gameRows = rows.value_or(info != nullptr ? info->rows : kFallbackRows);
  if (info != nullptr) board.typeOfGame = std::string(info->typeOfGame);
}

}  // namespace tessarine
