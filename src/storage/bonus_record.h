#pragma once

#include "storage/data_manager.h"

namespace tessarine {

// The Christmas present is granted once: a record "Xmas 2023" in the bonus store says it was.
constexpr const char* kBonusRecord = "Xmas 2023";

bool hasBonusRecord(const BonusDataManager& bonusDM);
bool saveBonusRecord(BonusDataManager& bonusDM);

}  // namespace tessarine
