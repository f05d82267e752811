#include <gtest/gtest.h>

#include "catalogue/catalogue.h"
#include "challenge/challenge_key.h"

namespace tessarine {
namespace {

std::string digitsOf(std::string_view type, int index) {
  std::string text;
  for (const int digit : challengeKeyDigits(type, index))
    text += std::to_string(digit);
  return text;
}

KeyCells cellsOf(const std::string& digits) {
  KeyCells cells;
  for (std::size_t i = 0; i < 6; ++i)
    cells[i] = std::string(1, digits[i]);
  return cells;
}

TEST(ChallengeKey, KnownKeys) {
  const struct {
    const char* type;
    int index;
    const char* key;
  } cases[] = {{"C", 1234, "806349"}, {"A", 0, "000000"}, {"3", 3653, "691536"}, {"X", 0, "581000"}};
  for (const auto& c : cases) {
    EXPECT_EQ(digitsOf(c.type, c.index), c.key) << c.type << c.index;
    const KeyCheck check = checkChallengeKey(cellsOf(c.key));
    EXPECT_TRUE(check.valid) << c.key;
    EXPECT_EQ(check.gameType, c.type);
    EXPECT_EQ(check.challengeIndex, c.index);
  }
  EXPECT_EQ(makeChallengeKey("C", 1234), "8️⃣0️⃣6️⃣3️⃣4️⃣9️⃣");
}

TEST(ChallengeKey, EveryTypeWithAListRoundTrips) {
  for (const GameTypeInfo& info : gameCatalogue()) {
    if (info.answerFile.empty()) continue;
    for (const int index : {0, 1, 1849, 3653, 3699}) {
      const KeyCheck check = checkChallengeKey(cellsOf(digitsOf(info.gameType, index)));
      EXPECT_TRUE(check.valid) << info.gameType << " " << index;
      EXPECT_EQ(check.gameType, info.gameType);
      EXPECT_EQ(check.challengeIndex, index);
      EXPECT_EQ(check.gameIndex, info.typeNumber);
    }
  }
}

TEST(ChallengeKey, RefusedKeys) {
  // Type 22 and everything above 26 are refused even with a correct check digit.
  for (const auto& [type, index] : {std::pair{"V", 0}, {"V", 3699}, {"Ñ", 5}}) {
    const KeyCheck check = checkChallengeKey(cellsOf(digitsOf(type, index)));
    EXPECT_FALSE(check.valid) << type;
    EXPECT_EQ(check.gameType, kNoGameType);
    EXPECT_EQ(check.errorIndex, 0);
  }
  EXPECT_FALSE(checkChallengeKey(cellsOf("999999")).valid);
  // A cell that holds no digit counts as 0, as a typed 0 would.
  KeyCells blanks = cellsOf("806349");
  blanks[1] = "   ";
  EXPECT_EQ(checkChallengeKey(blanks).valid, checkChallengeKey(cellsOf("806349")).valid);
  blanks[0] = "   ";
  EXPECT_FALSE(checkChallengeKey(blanks).valid);
  EXPECT_EQ(makeChallengeKey("Y", 0).substr(0, 4), "🔢");
}

TEST(ChallengeKey, EverySingleDigitErrorIsCaught) {
  for (const auto& [type, index] : {std::pair{"C", 1234}, {"A", 0}, {"3", 3653}, {"M", 777}, {"W", 2001}}) {
    const std::string key = digitsOf(type, index);
    for (std::size_t position = 0; position < 6; ++position) {
      for (char digit = '0'; digit <= '9'; ++digit) {
        if (digit == key[position]) continue;
        std::string typo = key;
        typo[position] = digit;
        EXPECT_FALSE(checkChallengeKey(cellsOf(typo)).valid) << key << " -> " << typo;
      }
    }
  }
}

}  // namespace
}  // namespace tessarine
