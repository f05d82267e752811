// The challenge store as the match sees it: the scan on opening, the used answers, the saved
// matches, the counts of the statistics screen, and every write a match makes.
#pragma once

#include <string>
#include <vector>

#include "challenge/challenge_answer.h"
#include "challenge/match_state.h"
#include "storage/data_manager.h"

namespace tessarine {

struct ChallengeScan {
  UsedAnswers used;
  std::vector<Entry> challengeEntries;    // the fetch, in store order
  std::vector<int> savedChallengesIndex;  // positions in challengeEntries
  std::vector<std::string> savedChallengesName;
  int numberOfSavedChallenges = 0;
  int numberOfChallenges = 0, numberOfWins = 0, numberOfLosts = 0, numberOfDraws = 0;
  int lastResult = -1;  // position of this type's latest finished match
};

class ChallengeRecords {
 public:
  explicit ChallengeRecords(DataManager& store) : store_(store) {}

  // Records of other types, and records that do not read, are left alone (and never deleted).
  ChallengeScan scan(const std::string& gameType) const;

  // Deletes the latest result of the scan; the win, loss and draw counts keep it until the next scan.
  void deleteLastScore(ChallengeScan& scan);

  // A saved match replaces its earlier record (delete, then add): a record is never edited in place.
  bool saveMatch(MatchState& match, const std::string& name);
  // Once a match; nothing when the first reply was a walk.
  void saveResult(MatchState& match);
  // An abandoned match that has barely begun still marks its answer as used.
  void leaveUnfinished(const MatchState& match);
  // The saved match at `choice` of the scan leaves the list; its answer stays used.
  bool deleteSaved(ChallengeScan& scan, int choice);

 private:
  bool replaceSaved(int savedChallengeIndex, const std::string& text, int& newPosition);

  DataManager& store_;
};

// The statistics screen: its four lines and its share text.
std::vector<std::string> challengeStatisticsLines(const ChallengeScan& scan, bool english);
std::string challengeStatisticsTitle(const std::string& gameType, bool english);
std::string challengeStatisticsText(const ChallengeScan& scan, const std::string& gameType, bool english);

}  // namespace tessarine
