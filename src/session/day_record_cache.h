#pragma once

#include <cstdint>
#include <ostream>
#include <unordered_set>
#include <vector>

#include "storage/day_record.h"

namespace tessarine {

// The parsed day records, kept between refreshes. Records are never changed in place (a changed
// day moves to a new record), so a record once parsed stays valid for its id: after a write only
// the new ids are parsed, and without a write nothing is fetched at all.
class DayRecordCache {
 public:
  // The records in creation order, fetched again only when a write happened since the last call.
  // Each unreadable record is named once on `log` and left in the store. When the store cannot be
  // read (another process holds it), the last good copy comes back, still stale, and is tried
  // again at the next call.
  const std::vector<DayRecord>& records(const CoreDataManager& coreDM, std::ostream& log);
  // Every write to the day store goes through the session, which calls this after it.
  void invalidate() { stale_ = true; }
  // Whether the records match the store. Nothing may be written or deleted on a stale copy: a
  // record missing from it is not a record missing from the store.
  bool fresh() const { return !stale_; }

 private:
  std::vector<DayRecord> records_;
  std::unordered_set<std::int64_t> reported_;
  bool stale_ = true;
};

}  // namespace tessarine
