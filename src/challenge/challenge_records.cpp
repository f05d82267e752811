#include "challenge/challenge_records.h"

#include "catalogue/lists.h"
#include "challenge/challenge_record.h"

namespace tessarine {

ChallengeScan ChallengeRecords::scan(const std::string& gameType) const {
  ChallengeScan scan;
  scan.challengeEntries = store_.getAllEntries();
  for (std::size_t i = 0; i < scan.challengeEntries.size(); ++i) {
    const auto summary = summariseRecord(scan.challengeEntries[i].text);
    if (!summary || summary->gameType != gameType) continue;
    if (summary->index) scan.used.mark(*summary->index);
    if (summary->result) {
      scan.numberOfChallenges += 1;
      if (*summary->result == 'W') {
        scan.numberOfWins += 1;
      } else if (*summary->result == 'L') {
        scan.numberOfLosts += 1;
      } else {
        scan.numberOfDraws += 1;
      }
      scan.lastResult = static_cast<int>(i);
    }
    if (summary->savedName) {
      scan.savedChallengesIndex.push_back(static_cast<int>(i));
      scan.savedChallengesName.push_back(*summary->savedName);
    }
  }
  scan.numberOfSavedChallenges = static_cast<int>(scan.savedChallengesIndex.size());
  return scan;
}

void ChallengeRecords::deleteLastScore(ChallengeScan& scan) {
  if (scan.lastResult < 0) return;
  if (store_.deleteEntry(scan.challengeEntries[static_cast<std::size_t>(scan.lastResult)]))
    scan.numberOfChallenges -= 1;
  scan.lastResult = -1;
}

bool ChallengeRecords::saveMatch(MatchState& match, const std::string& name) {
  const std::string record = savedMatchRecord(match, name);
  if (match.savedEntryId != 0 && !store_.deleteEntry(Entry{match.savedEntryId, {}})) return false;
  const auto saved = store_.saveEntry(record);
  if (!saved) return false;
  match.savedEntryId = saved->id;
  match.savedName = name;
  return true;
}

void ChallengeRecords::saveResult(MatchState& match) {
  if (match.resultsSaved || match.opponentFirstGuessWalked) return;
  const std::string record = resultRecord(match.challengeIndex, match.gameType, matchResult(match));
  if (match.savedEntryId != 0) {
    if (!store_.replaceEntry(Entry{match.savedEntryId, {}}, record)) return;
    match.savedEntryId = 0;
  } else if (!store_.saveEntry(record)) {
    return;
  }
  match.resultsSaved = true;
}

void ChallengeRecords::leaveUnfinished(const MatchState& match) {
  if (match.activeRow() < 2 && !match.waitingForGuess && !match.opponentGuess)
    store_.saveEntry(usedAnswerRecord(match.challengeIndex, match.gameType));
}

bool ChallengeRecords::deleteSaved(ChallengeScan& scan, int choice) {
  if (choice < 0 || choice >= scan.numberOfSavedChallenges) return false;
  const auto position = static_cast<std::size_t>(scan.savedChallengesIndex[static_cast<std::size_t>(choice)]);
  const Entry& entry = scan.challengeEntries[position];
  // Add the used-answer record first: a failure between the two steps keeps the answer marked.
  const auto symbols = splitSymbols(entry.text);
  std::string head;
  for (std::size_t i = 0; i < 5 && i < symbols.size(); ++i)
    head += symbols[i];
  if (!store_.saveEntry(head)) return false;
  if (!store_.deleteEntry(entry)) return false;
  scan.savedChallengesIndex.erase(scan.savedChallengesIndex.begin() + choice);
  scan.savedChallengesName.erase(scan.savedChallengesName.begin() + choice);
  scan.numberOfSavedChallenges -= 1;
  return true;
}

std::vector<std::string> challengeStatisticsLines(const ChallengeScan& scan, bool english) {
  const auto line = [](const char* label, int count) { return std::string(label) + std::to_string(count); };
  if (english)
    return {line("  Challenges Played: ", scan.numberOfChallenges),
            line("  Challenges Won: ", scan.numberOfWins), line("  Challenges Lost: ", scan.numberOfLosts),
            line("  Challenges Draw: ", scan.numberOfDraws)};
  return {line("  Desafíos Jugó: ", scan.numberOfChallenges), line("  Desafíos Ganado: ", scan.numberOfWins),
          line("  Desafíos Perdido: ", scan.numberOfLosts), line("  Desafíos Empatar: ", scan.numberOfDraws)};
}

std::string challengeStatisticsTitle(const std::string& gameType, bool english) {
  return challengeGameTag(gameType) + (english ? " STATISTICS" : " ESTADÍSTICAS");
}

std::string challengeStatisticsText(const ChallengeScan& scan, const std::string& gameType, bool english) {
  const auto n = [](int count) { return std::to_string(count); };
  if (english)
    return challengeStatisticsTitle(gameType, true) +
           "\n\nChallenges Played:  " + n(scan.numberOfChallenges) +
           "\nChallenges Won:  " + n(scan.numberOfWins) + "\nChallenges Lost:  " + n(scan.numberOfLosts) +
           "\nChallenges Draw:  " + n(scan.numberOfDraws);
  return challengeStatisticsTitle(gameType, false) + "\n\nDesafíos Jugó:  " + n(scan.numberOfChallenges) +
         "\nDesafíos Ganado:  " + n(scan.numberOfWins) + "\nDesafíos Perdido:  " + n(scan.numberOfLosts) +
         "\nDesafíos Empatar:  " + n(scan.numberOfDraws);
}

}  // namespace tessarine
