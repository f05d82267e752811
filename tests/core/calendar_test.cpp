#include <gtest/gtest.h>

#include "catalogue/calendar.h"

namespace tessarine {
namespace {

struct DayCase {
  LocalDateTime now;
  int expectedCount;
};

class DayCount : public testing::TestWithParam<DayCase> {};

TEST_P(DayCount, CountsWholeLocalDays) {
  FixedClock clock(GetParam().now);
  EXPECT_EQ(daysFromApril1st(clock), GetParam().expectedCount);
}

INSTANTIATE_TEST_SUITE_P(
    Calendar, DayCount,
    testing::Values(DayCase{{2022, 4, 1, 0, 0, 0}, 1}, DayCase{{2022, 4, 1, 23, 59, 59}, 1},
                    DayCase{{2022, 4, 2, 0, 0, 0}, 2},
                    // Across the spring-forward and fall-back nights of 2022 and 2023.
                    DayCase{{2022, 11, 6, 0, 30, 0}, 220}, DayCase{{2022, 11, 6, 23, 30, 0}, 220},
                    DayCase{{2023, 3, 12, 1, 59, 0}, 346}, DayCase{{2023, 3, 12, 3, 0, 0}, 346},
                    DayCase{{2023, 12, 25, 12, 0, 0}, 634}, DayCase{{2024, 2, 29, 9, 0, 0}, 700},
                    DayCase{{2022, 3, 31, 12, 0, 0}, 0}));

TEST(Calendar, DisplayDatesInBothLanguagesWhateverTheDevice) {
  FixedClock clock({2022, 4, 11, 10, 0, 0});
  EXPECT_EQ(displayDateString(clock, -10, false, true), "April 1, 2022");
  EXPECT_EQ(displayDateString(clock, -10, false, false), "1 abril, 2022");
  EXPECT_EQ(displayDateString(clock, 0, true, true), " ");
  EXPECT_EQ(plainDateString(clock, 265), "January 1, 2023");
}

TEST(Calendar, ParsesOnlyWellFormedDates) {
  EXPECT_TRUE(parseEnglishDate("April 1, 2022").has_value());
  EXPECT_FALSE(parseEnglishDate("Abril 1, 2022").has_value());
  EXPECT_FALSE(parseEnglishDate("February 30, 2023").has_value());
  EXPECT_FALSE(parseIsoDate("2023-13-01").has_value());
  EXPECT_EQ(parseIsoDate("2023-12-25"), (CivilDate{2023, 12, 25}));
}

}  // namespace
}  // namespace tessarine
