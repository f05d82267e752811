#pragma once

#include <cstdint>
#include <ostream>
#include <unordered_set>
#include <vector>

#include "storage/day_record.h"

namespace tessarine {

// The parsed day records, kept between refreshes and kept exact across the session's own writes:
// a save or a delete that went through is applied to the copy at the next read, without a fetch,
// and a write that failed changes neither the store nor the copy. Only a write that did not say
// what it changed (`invalidate`) costs a fetch of the whole store.
class DayRecordCache {
 public:
  // The records in creation order. Each unreadable record is named once on `log` and left in the
  // store. When the store cannot be read (another process holds it), the last good copy comes
  // back, still stale, and is tried again at the next call.
  const std::vector<DayRecord>& records(const CoreDataManager& coreDM, std::ostream& log);

  // A record the store saved; its id is above every id before it.
  void saved(const Entry& entry) { pendingSaves_.push_back(entry); }
  void deleted(std::int64_t id) { pendingDeletes_.insert(id); }
  void invalidate() { stale_ = true; }
  // Whether the records match the store. Nothing may be written or deleted on a stale copy: a
  // record missing from it is not a record missing from the store.
  bool fresh() const { return !stale_; }

 private:
  void fetch(const CoreDataManager& coreDM, std::ostream& log);
  void applyPending(std::ostream& log);
  void add(Entry entry, std::size_t storeIndex, std::ostream& log);

  std::vector<DayRecord> records_;
  std::size_t storeSize_ = 0;  // records in the store, readable or not
  std::vector<Entry> pendingSaves_;
  std::unordered_set<std::int64_t> pendingDeletes_;
  std::unordered_set<std::int64_t> unreadable_;
  bool stale_ = true;
};

}  // namespace tessarine
