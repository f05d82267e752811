// The one record format of the challenge store, in three lengths: an answer used (5 characters), a
// finished match (6), a match saved for later (143). Pure conversions; the store is elsewhere.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "challenge/match_state.h"

namespace tessarine {

inline constexpr int kSavedRecordLength = 143;
inline constexpr int kSavedNameLength = 20;

std::string usedAnswerRecord(int challengeIndex, std::string_view gameType);
std::string resultRecord(int challengeIndex, std::string_view gameType, MatchResult result);
std::string savedMatchRecord(const MatchState& match, std::string_view name);

// The fields of a saved record written into `match` (cells, counters, flags, guesses, name); nothing
// when the record is not a well-formed saved match.
bool readSavedMatch(std::string_view record, MatchState& match);

// What the scan of the store needs of any record: its type, index, and result or name.
struct RecordSummary {
  std::string gameType;
  std::optional<int> index;  // the first four characters, when they read 0 to 3699
  std::optional<char> result;
  std::optional<std::string> savedName;
};
std::optional<RecordSummary> summariseRecord(std::string_view record);

// A name the player typed, trimmed; nothing unless 1 to 20 characters remain.
std::optional<std::string> validSavedName(std::string_view typed);

}  // namespace tessarine
