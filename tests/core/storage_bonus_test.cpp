#include <gtest/gtest.h>

#include "catalogue/clock.h"
#include "session/bonus_check.h"
#include "storage/bonus_record.h"
#include "storage_test_support.h"

namespace tessarine {
namespace {

using testing_support::reopenedTexts;
using testing_support::TempDir;
using Texts = std::vector<std::string>;

const std::string kInitial = kChristmasMessage;

// Christmas Day 2023, a session that has seen it, and its settings in place.
struct ChristmasDay {
  explicit ChristmasDay(int minimumDayIndex, bool english = true) : stores(dir.path()) {
    view.minimumDayIndex = minimumDayIndex;
    view.latestDateIndex = 633;
    view.EnglishTranslation = english;
    stores.settingDM.saveEntry(std::to_string(minimumDayIndex));
    stores.settingDM.saveEntry("CNNYYYNNY");
  }
  bool check() {
    return bonusCheck(view, stores, clock, [this] {
      ++refreshes;
      refreshedMinimum = view.minimumDayIndex;
    });
  }
  TempDir dir;
  DataManagers stores;
  FixedClock clock{{2023, 12, 25, 8}};
  ContentView view;
  int refreshes = 0;
  int refreshedMinimum = -1;
};

struct GrantCase {
  const char* name;
  int minimumDayIndex;
  bool english;
  int expectedMinimum;
  std::string expectedRecord0;
  std::string expectedAddition;
  int expectedRefreshes;
};

class ChristmasBonus : public testing::TestWithParam<GrantCase> {};

TEST_P(ChristmasBonus, GrantsOnceWithTheMessage) {
  const GrantCase& c = GetParam();
  ChristmasDay day(c.minimumDayIndex, c.english);
  EXPECT_TRUE(day.check());
  EXPECT_TRUE(day.view.showAlert4);
  EXPECT_EQ(day.view.minimumDayIndex, c.expectedMinimum);
  EXPECT_EQ(day.view.ChristmasMessage, kInitial + c.expectedAddition);
  EXPECT_EQ(day.refreshes, c.expectedRefreshes);
  if (c.expectedRefreshes > 0) EXPECT_EQ(day.refreshedMinimum, c.expectedMinimum);  // stored first
  EXPECT_EQ(reopenedTexts<SettingsDataManager>(day.dir.path()), (Texts{c.expectedRecord0, "CNNYYYNNY"}));
  EXPECT_EQ(reopenedTexts<BonusDataManager>(day.dir.path()), (Texts{"Xmas 2023"}));

  // Every later return to the app that day finds the record and does nothing.
  day.view.showAlert4 = false;
  EXPECT_FALSE(day.check());
  EXPECT_FALSE(day.view.showAlert4);
  EXPECT_EQ(day.view.ChristmasMessage, kInitial + c.expectedAddition);
  EXPECT_EQ(day.refreshes, c.expectedRefreshes);
}

const std::string kWish = "\n\nAn extra Christmas wish to the original Tessarine players, Marnie and Ansel.";
std::string present(int days, const std::string& newDate, const std::string& oldDate) {
  return "\n\nAs a present from Tessarine, " + std::to_string(days) +
         " new available days have been added to your game. Your new earliest available date is now " +
         newDate + ", instead of your old date of " + oldDate + ".";
}

INSTANTIATE_TEST_SUITE_P(
    Bonus, ChristmasBonus,
    testing::Values(GrantCase{"FiveDaysLeftGivesFive", 5, true, 0, "0000",
                              present(5, "April 1, 2022", "April 6, 2022"), 1},
                    GrantCase{"TwentyOfThirty", 30, true, 10, "0010",
                              present(20, "April 11, 2022", "May 1, 2022"), 1},
                    // The alert text is English in both languages; only the dates follow the setting.
                    GrantCase{"SpanishDates", 619, false, 599, "0599",
                              present(20, "21 noviembre, 2023", "11 diciembre, 2023"), 1},
                    GrantCase{"AllDaysOpenAlready", 0, true, 0, "0", kWish, 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Bonus, NothingBeforeTheSettingsExist) {
  TempDir dir;
  DataManagers stores(dir.path());
  ContentView view;
  view.minimumDayIndex = 5;
  FixedClock clock({2023, 12, 25, 8});
  EXPECT_FALSE(bonusCheck(view, stores, clock, [] { FAIL() << "refreshed"; }));
  EXPECT_FALSE(view.showAlert4);
  EXPECT_FALSE(hasBonusRecord(stores.bonusDM));
}

TEST(Bonus, RemovalSwitchDeletesTheRecordOnce) {
  ChristmasDay day(5);
  ASSERT_TRUE(saveBonusRecord(day.stores.bonusDM));
  day.view.removeBonusRecord = true;
  EXPECT_FALSE(day.check());
  EXPECT_FALSE(day.view.removeBonusRecord);
  EXPECT_FALSE(hasBonusRecord(day.stores.bonusDM));
  EXPECT_EQ(day.view.minimumDayIndex, 5);
}

}  // namespace
}  // namespace tessarine
