#pragma once

#include <string>

#include "session/session.h"

// The app's one way of changing the player's options: every option change goes through here, so
// the way the session takes options is written once.

// Sets the game type as the options screen does, saves it and refreshes the session.
void applyGameType(tessarine::Session& session, const std::string& gameType);
