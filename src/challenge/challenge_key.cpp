#include "challenge/challenge_key.h"

#include "catalogue/catalogue.h"
#include "storage/record_text.h"

namespace tessarine {
namespace {

// Each digit of the key has its own list of types; a type in neither list reads 0 and 0, so a
// type without a number yields a negative value, and keycaps above 9.
constexpr std::array<std::string_view, 3> kTens = {"ABCDEFGHI", "JKLMNOPQRS", "TUVWX23Ñ"};
constexpr std::array<std::string_view, 10> kOnes = {"JT",  "AKU", "BLV", "CMW", "DNX",
                                                    "EO2", "FP3", "GQÑ", "HR",  "IS"};

int digitOf(std::string_view gameType, const auto& lists) {
  for (std::size_t digit = 0; digit < lists.size(); ++digit) {
    const std::string_view list = lists[digit];
    if (!gameType.empty() && list.find(gameType) != std::string_view::npos) return static_cast<int>(digit);
  }
  return 0;
}

int checkDigit(int d1, int d2, int d3, int d4, int d5) {
  return (3 * d1 + 7 * d2 + 11 * d3 + 13 * d4 + 17 * d5) % 10;
}

int cellDigit(const std::string& cell) {
  return parseIntOr(cell, 0);
}

}  // namespace

int challengeTypeNumber(std::string_view gameType) {
  if (gameType.empty() || gameType == " ") return 0;
  return digitOf(gameType, kTens) * 10 + digitOf(gameType, kOnes);
}

std::string gameTypeOfNumber(int typeNumber) {
  static constexpr std::array<std::string_view, 27> kTypes = {"",  "A", "B", "C", "D", "E", "F", "G", "H",
                                                              "I", "J", "K", "L", "M", "N", "O", "P", "Q",
                                                              "R", "S", "T", "U", "Ó", "W", "X", "2", "3"};
  if (typeNumber < 1 || typeNumber > 26) return std::string(kNoGameType);
  return std::string(kTypes[static_cast<std::size_t>(typeNumber)]);
}

std::array<int, 6> challengeKeyDigits(std::string_view gameType, int challengeIndex) {
  const int value = (challengeTypeNumber(gameType) - 1) * kChallengeRadix + challengeIndex;
  const int d1 = value / 10000, d2 = (value % 10000) / 1000, d3 = (value % 1000) / 100;
  const int d4 = (value % 100) / 10, d5 = value % 10;
  // The ten-thousands digit goes second on purpose: the wire format has always been so.
  return {d2, d1, d3, d4, d5, checkDigit(d1, d2, d3, d4, d5)};
}

std::string keycap(int digit) {
  if (digit < 0 || digit > 9) return "🔢";
  return std::string(1, static_cast<char>('0' + digit)) + "\xEF\xB8\x8F\xE2\x83\xA3";
}

std::string makeChallengeKey(std::string_view gameType, int challengeIndex) {
  std::string key;
  for (const int digit : challengeKeyDigits(gameType, challengeIndex))
    key += keycap(digit);
  return key;
}

std::string challengeGameTag(std::string_view gameType) {
  const GameTypeInfo* info = findGameType(gameType);
  return info ? std::string(info->gameShareCode) : std::string(gameType);
}

KeyCheck checkChallengeKey(const KeyCells& cells) {
  const int k1 = cellDigit(cells[0]), k2 = cellDigit(cells[1]), k3 = cellDigit(cells[2]);
  const int k4 = cellDigit(cells[3]), k5 = cellDigit(cells[4]);
  const int value = 10000 * k2 + 1000 * k1 + 100 * k3 + 10 * k4 + k5;
  KeyCheck check;
  check.challengeIndex = value % kChallengeRadix;
  check.gameIndex = value / kChallengeRadix + 1;
  check.gameType = gameTypeOfNumber(check.gameIndex);
  check.errorIndex = checkDigit(k2, k1, k3, k4, k5) - cellDigit(cells[5]);
  check.valid = check.errorIndex == 0 && check.gameType != kNoGameType && check.challengeIndex >= 0 &&
                check.challengeIndex < kChallengeRadix;
  return check;
}

}  // namespace tessarine
