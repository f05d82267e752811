#pragma once

#include <functional>

#include "catalogue/clock.h"
#include "session/content_view.h"
#include "storage/data_manager.h"

namespace tessarine {

// Run on a return to the active phase on Christmas Day 2023. Opens up to `ChristmasDayBonusValue`
// older days, raises the alert (`showAlert4`) and adds to `ChristmasMessage`; the texts are English
// in both languages. `refreshBothFlagsFalse` is the session's refresh after the new earliest day is
// stored. Returns true when it granted (the alert is to be shown).
bool bonusCheck(ContentView& view, DataManagers& stores, const Clock& clock,
                const std::function<void()>& refreshBothFlagsFalse);

}  // namespace tessarine
