#pragma once

#include <vector>

#include "storage/day_record.h"

namespace tessarine {

class Session;

// What the refresh's scan of the day records found for the shown day.
struct ReplayScan {
  int firstMatch = -1;            // first record of the shown day's key, in store order
  int lastMatch = -1;             // the last one: the record that is replayed
  std::vector<int> olderMatches;  // every match before the last, to be removed
  int lastScore = 0;              // stored score of the last match, when it is a finished game
  int prepopulateSource = -1;     // the latest finished game whose first row may be copied
};

// The replay half of the refresh: restores the stored rows of the shown day, scores every played
// row again, decides what the last full row is, and reconciles the stored score with it.
class SessionReplay {
 public:
  explicit SessionReplay(Session& session) : session_(session) {}
  void run(const ReplayScan& scan, const std::vector<DayRecord>& records);

 private:
  void prepopulate(const DayRecord& source);
  void lastFullRow(const ReplayScan& scan, const std::vector<DayRecord>& records, bool smartRecord);
  void acceptedRow(const ReplayScan& scan, const std::vector<DayRecord>& records);
  void openRow();
  void hintsAfterAcceptedRow();
  int countRowEntries(int row);

  Session& session_;
};

}  // namespace tessarine
