#include <gtest/gtest.h>

#include "screens/board_sizes.h"

namespace tessarine {
namespace {

struct SizeCase {
  const char* gameType;
  bool useQWERTY;
  bool small;
  double keypadWidth;
  double cellWidth;
};

TEST(BoardSizes, KnownWidths) {
  const SizeCase cases[] = {
      {"A", true, false, 0.08, 0.108},  {"A", false, false, 0.1, 0.09},    {"3", true, true, 0.08, 0.094},
      {"V", false, true, 0.1, 0.08},    {"C", false, true, 0.1, 0.108},    {"Y", true, false, 0.08, 0.108},
      {"E", false, false, 0.1, 0.094},  {"Z", true, true, 0.08, 0.094},    {"F", true, false, 0.08, 0.081},
      {"Ñ", false, true, 0.1, 0.081},   {"G", true, false, 0.094, 0.094},  {"H", false, true, 0.081, 0.094},
      {"I", true, true, 0.111, 0.081},  {"L", false, false, 0.111, 0.081}, {"M", true, false, 0.111, 0.081},
      {"R", false, true, 0.111, 0.081}, {"Ó", true, false, 0.08, 0.108},   {"Ó", false, true, 0.1, 0.108},
  };
  for (const SizeCase& c : cases) {
    const BoardSizes sizes = boardSizes(c.gameType, c.useQWERTY, c.small);
    EXPECT_DOUBLE_EQ(sizes.keypadWidth, c.keypadWidth) << c.gameType << c.useQWERTY << c.small;
    EXPECT_DOUBLE_EQ(sizes.cellWidth, c.cellWidth) << c.gameType << c.useQWERTY << c.small;
  }
}

TEST(BoardSizes, SmallScreenIsBelowEightHundred) {
  EXPECT_DOUBLE_EQ(boardMetrics("A", true, 400, 799).cellWidth, 0.094 * 400);
  EXPECT_DOUBLE_EQ(boardMetrics("A", true, 400, 800).cellWidth, 0.108 * 400);
}

}  // namespace
}  // namespace tessarine
