// Compiled against the engine layer only: this include must fail.
#include "session/content_view.h"
