#include "storage/bonus_record.h"

namespace tessarine {

bool hasBonusRecord(const BonusDataManager& bonusDM) {
  return !bonusDM.getAllEntries().empty();
}

bool saveBonusRecord(BonusDataManager& bonusDM) {
  return bonusDM.saveEntry(kBonusRecord).has_value();
}

}  // namespace tessarine
