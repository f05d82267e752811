#include "session/day_record_cache.h"

#include <string>

namespace tessarine {

const std::vector<DayRecord>& DayRecordCache::records(const CoreDataManager& coreDM, std::ostream& log) {
  if (!stale_) return records_;
  const std::optional<std::vector<Entry>> fetched = coreDM.fetchEntries();
  if (!fetched) return records_;
  const std::vector<Entry>& entries = *fetched;
  // Both lists are in creation order, so one forward walk pairs each entry with its old parse.
  // Records are compacted in place: after a submission only the new record is parsed and only
  // the records behind a deleted one move.
  std::vector<DayRecord> added;
  std::vector<std::size_t> addedAt;
  std::size_t kept = 0, old = 0;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Entry& entry = entries[i];
    while (old < records_.size() && records_[old].entry.id < entry.id)
      ++old;
    if (old < records_.size() && records_[old].entry.id == entry.id &&
        records_[old].entry.text == entry.text) {
      if (kept != old) records_[kept] = std::move(records_[old]);
      ++kept;
      ++old;
      continue;
    }
    std::string problem;
    if (auto record = parseDayRecord(entry, problem)) {
      // A new record sits between kept ones only when ids were reused; it is placed after the walk.
      added.push_back(std::move(*record));
      addedAt.push_back(kept + added.size() - 1);
    } else if (reported_.insert(entry.id).second) {
      log << "Skipped day record " << i << ": " << problem << '\n';
    }
  }
  records_.resize(kept);
  for (std::size_t k = 0; k < added.size(); ++k)
    records_.insert(records_.begin() + addedAt[k], std::move(added[k]));
  stale_ = false;
  return records_;
}

}  // namespace tessarine
