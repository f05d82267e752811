#pragma once

#include <string>

#include "session/session.h"

// The app's one way of changing the player's options: every option change goes through here, so
// the way the session takes options is written once.

// Saves the options record, applies the catalogue when the type changed and refreshes.
void applyOptions(tessarine::Session& session, const tessarine::Options& options);
// Sets the game type as the options screen does.
void applyGameType(tessarine::Session& session, const std::string& gameType);
