#include "session/day_record_cache.h"

#include <algorithm>
#include <string>

namespace tessarine {

const std::vector<DayRecord>& DayRecordCache::records(const CoreDataManager& coreDM, std::ostream& log) {
  if (stale_) {
    fetch(coreDM, log);
  } else {
    applyPending(log);
  }
  return records_;
}

void DayRecordCache::add(Entry entry, std::size_t storeIndex, std::ostream& log) {
  std::string problem;
  const std::int64_t id = entry.id;
  if (auto record = parseDayRecord(std::move(entry), problem)) {
    records_.push_back(std::move(*record));
  } else if (unreadable_.insert(id).second) {
    log << "Skipped day record " << storeIndex << ": " << problem << '\n';
  }
}

void DayRecordCache::fetch(const CoreDataManager& coreDM, std::ostream& log) {
  std::vector<DayRecord> previous;
  previous.swap(records_);
  records_.reserve(coreDM.countEntries());
  const std::size_t previousSize = storeSize_;
  storeSize_ = 0;
  if (!coreDM.forEachEntry([&](Entry&& entry) { add(std::move(entry), storeSize_++, log); })) {
    // A locked or failing store is not an empty one: keep the last good copy and stay stale.
    records_.swap(previous);
    storeSize_ = previousSize;
    return;
  }
  pendingSaves_.clear();
  pendingDeletes_.clear();
  stale_ = false;
}

void DayRecordCache::applyPending(std::ostream& log) {
  if (!pendingDeletes_.empty()) {
    const auto gone = [this](const DayRecord& record) { return pendingDeletes_.contains(record.entry.id); };
    records_.erase(std::remove_if(records_.begin(), records_.end(), gone), records_.end());
    for (const std::int64_t id : pendingDeletes_)
      unreadable_.erase(id);
    storeSize_ -= std::min(storeSize_, pendingDeletes_.size());
    pendingDeletes_.clear();
  }
  for (const Entry& entry : pendingSaves_)
    add(entry, storeSize_++, log);
  pendingSaves_.clear();
}

}  // namespace tessarine
