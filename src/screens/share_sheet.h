// The app's own share sheet: the words around the text that is sent. Not in the game's texts
// themselves, so ours, in both languages.
#pragma once

#include "screens/sheet_text.h"

namespace tessarine {

inline constexpr Bilingual kShareSheetTitle{"Share", "Compartir"};
inline constexpr Bilingual kShareSheetCopyButton{"Copy", "Copiar"};
inline constexpr Bilingual kShareSheetCopiedNote{"Copied to the clipboard", "Copiado al portapapeles"};

}  // namespace tessarine
