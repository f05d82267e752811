#pragma once

#include <QString>

// Puts the game's own fontconfig configuration (fonts/fonts.conf) in place of the system's, unless
// the player has chosen one with FONTCONFIG_FILE or FONTCONFIG_PATH. Call before anything draws or
// measures text, and before QGuiApplication. On failure the system's configuration stays and the
// returned text says why; an empty text means the game's configuration is in use or was not wanted.
QString useGameFontConfiguration();
