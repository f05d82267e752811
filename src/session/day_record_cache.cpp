#include "session/day_record_cache.h"

#include <string>

namespace tessarine {

const std::vector<DayRecord>& DayRecordCache::records(const CoreDataManager& coreDM, std::ostream& log) {
  if (!stale_) return records_;
  const std::vector<Entry> entries = coreDM.getAllEntries();
  std::vector<DayRecord> fresh;
  fresh.reserve(entries.size());
  // Both lists are in creation order, so one forward walk pairs each entry with its old parse.
  std::size_t old = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Entry& entry = entries[i];
    while (old < records_.size() && records_[old].entry.id < entry.id)
      ++old;
    if (old < records_.size() && records_[old].entry.id == entry.id &&
        records_[old].entry.text == entry.text) {
      fresh.push_back(std::move(records_[old++]));
      continue;
    }
    std::string problem;
    if (auto record = parseDayRecord(entry, problem)) {
      fresh.push_back(std::move(*record));
    } else if (reported_.insert(entry.id).second) {
      log << "Skipped day record " << i << ": " << problem << '\n';
    }
  }
  records_ = std::move(fresh);
  stale_ = false;
  return records_;
}

}  // namespace tessarine
