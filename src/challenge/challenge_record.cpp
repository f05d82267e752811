#include "challenge/challenge_record.h"

#include <array>
#include <vector>

#include "catalogue/lists.h"
#include "storage/record_text.h"

namespace tessarine {
namespace {

constexpr int kFlagsAt = 12, kGuessesAt = 35, kCellsAt = 59, kNameAt = 123;

std::string padded(std::string_view text, std::size_t length) {
  std::string out(text);
  const std::size_t count = symbolCount(text);
  if (count < length) out.append(length - count, ' ');
  return out;
}

std::string joinRange(const std::vector<std::string>& symbols, int from, int count) {
  std::string out;
  for (int i = from; i < from + count; ++i)
    out += symbols[static_cast<std::size_t>(i)];
  return out;
}

std::optional<int> digitsAt(const std::vector<std::string>& symbols, int from, int count) {
  const std::string text = joinRange(symbols, from, count);
  for (const char c : text)
    if (c < '0' || c > '9') return std::nullopt;
  return parseIntOr(text, 0);
}

std::string guessField(const std::vector<std::string>& symbols, int from) {
  return std::string(trimView(joinRange(symbols, from, 8)));
}

}  // namespace

std::string usedAnswerRecord(int challengeIndex, std::string_view gameType) {
  return paddedDayIndex(challengeIndex < 0 ? 0 : challengeIndex) + std::string(gameType);
}

std::string resultRecord(int challengeIndex, std::string_view gameType, MatchResult result) {
  static constexpr std::array<char, 3> kLetters = {'W', 'L', 'D'};
  return usedAnswerRecord(challengeIndex, gameType) + kLetters[static_cast<std::size_t>(result)];
}

std::string savedMatchRecord(const MatchState& m, std::string_view name) {
  std::string out = usedAnswerRecord(m.challengeIndex, m.gameType);
  out += std::to_string(m.numPlayer) + std::to_string(m.activeRow());
  out += (m.currentPosition < 10 ? "0" : "") + std::to_string(m.currentPosition);
  out += std::to_string(m.numCellEntries) + std::to_string(m.numStrikes) + std::to_string(m.numBalls);
  for (const auto& flag : storedMatchFlags())
    out += m.*flag.field ? 'T' : 'F';
  out += padded(m.opponentLastGuess, 8) + padded(m.playerLastGuess, 8) + padded(m.player8thGuess, 8);
  for (int cell = 0; cell < kMatchCells; ++cell) {
    const std::string& letter = m.board.cellLetter[static_cast<std::size_t>(cell)];
    out += letter == kEmptyCell || letter.empty() ? " " : letter;
  }
  return out + padded(name, kSavedNameLength);
}

bool readSavedMatch(std::string_view record, MatchState& m) {
  if (!isValidUtf8(record)) return false;
  const auto symbols = splitSymbols(record);
  if (static_cast<int>(symbols.size()) != kSavedRecordLength) return false;
  const auto index = digitsAt(symbols, 0, 4), player = digitsAt(symbols, 5, 1), row = digitsAt(symbols, 6, 1);
  const auto position = digitsAt(symbols, 7, 2), entries = digitsAt(symbols, 9, 1);
  const auto strikes = digitsAt(symbols, 10, 1), balls = digitsAt(symbols, 11, 1);
  if (!index || !player || !row || !position || !entries || !strikes || !balls) return false;
  if (*player < 1 || *player > 2 || *row >= kMatchRows || *position >= kMatchCells) return false;
  for (int i = 0; i < 23; ++i) {
    const std::string& flag = symbols[static_cast<std::size_t>(kFlagsAt + i)];
    if (flag != "T" && flag != "F") return false;
  }
  m.challengeIndex = *index;
  m.gameType = symbols[4];
  m.numPlayer = *player;
  m.board.activeRow = *row;
  m.currentPosition = *position;
  m.numCellEntries = *entries;
  m.numStrikes = *strikes;
  m.numBalls = *balls;
  for (std::size_t i = 0; i < storedMatchFlags().size(); ++i)
    m.*storedMatchFlags()[i].field = symbols[kFlagsAt + i] == "T";
  m.opponentLastGuess = guessField(symbols, kGuessesAt);
  m.playerLastGuess = guessField(symbols, kGuessesAt + 8);
  // A single blank is how a lost turn reads; trimming would make it an empty string, which the
  // texts treat the same (fewer than three characters).
  m.player8thGuess = guessField(symbols, kGuessesAt + 16);
  for (int cell = 0; cell < kMatchCells; ++cell) {
    const std::string& letter = symbols[static_cast<std::size_t>(kCellsAt + cell)];
    m.board.cellLetter[static_cast<std::size_t>(cell)] = letter == " " ? kEmptyCell : letter;
  }
  m.savedName = std::string(trimView(joinRange(symbols, kNameAt, kSavedNameLength)));
  return true;
}

std::optional<RecordSummary> summariseRecord(std::string_view record) {
  if (!isValidUtf8(record)) return std::nullopt;
  const auto symbols = splitSymbols(record);
  if (symbols.size() < 5) return std::nullopt;
  RecordSummary summary;
  summary.gameType = symbols[4];
  const auto index = digitsAt(symbols, 0, 4);
  if (index && *index < 3700) summary.index = index;
  if (symbols.size() == 6) summary.result = symbols[5].size() == 1 ? symbols[5][0] : '?';
  if (symbols.size() >= 7) {
    const int size = static_cast<int>(symbols.size());
    const int from = size > kSavedNameLength ? size - kSavedNameLength : 0;
    summary.savedName = std::string(trimView(joinRange(symbols, from, size - from)));
  }
  return summary;
}

std::optional<std::string> validSavedName(std::string_view typed) {
  const std::string_view name = trimView(typed);
  const std::size_t length = symbolCount(name);
  if (length < 1 || length > static_cast<std::size_t>(kSavedNameLength)) return std::nullopt;
  return std::string(name);
}

}  // namespace tessarine
