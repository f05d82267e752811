#include <gtest/gtest.h>

#include <functional>

#include "session/settings_load.h"
#include "storage/settings_record.h"
#include "storage_test_support.h"

namespace tessarine {
namespace {

using testing_support::reopenedTexts;
using testing_support::TempDir;
using Texts = std::vector<std::string>;

// Loads the settings as a launch would: a fresh session record over stores already on disk.
struct Launch {
  Launch(const std::filesystem::path& dir, const Texts& settings, const Texts& days, LocalDateTime now,
         bool noMinimumDay = false)
      : clock(now) {
    {
      SettingsDataManager settingDM(dir);
      CoreDataManager coreDM(dir);
      for (const auto& text : settings)
        settingDM.saveEntry(text);
      for (const auto& text : days)
        coreDM.saveEntry(text);
    }
    SettingsDataManager settingDM(dir);
    CoreDataManager coreDM(dir);
    view.noMinimumDay = noMinimumDay;
    loadSettings(view, settingDM, coreDM, clock);
  }
  FixedClock clock;
  ContentView view;
};

struct FirstRunCase {
  const char* name;
  Texts settings;  // what survived in a damaged store
  Texts days;
  LocalDateTime now;
  int expectedMinimum;
};

class FirstRun : public testing::TestWithParam<FirstRunCase> {};

TEST_P(FirstRun, CreatesBothRecords) {
  const FirstRunCase& c = GetParam();
  TempDir dir;
  Launch launch(dir.path(), c.settings, c.days, c.now);
  EXPECT_EQ(launch.view.minimumDayIndex, c.expectedMinimum);
  EXPECT_EQ(launch.view.gameType, "C");
  EXPECT_EQ(launch.view.settingEntries.size(), 2u);
  // The options are stored with the type the session had before loading.
  const std::string record0 =
      std::string(4 - std::to_string(c.expectedMinimum).size(), '0') + std::to_string(c.expectedMinimum);
  EXPECT_EQ(reopenedTexts<SettingsDataManager>(dir.path()), (Texts{record0, "ÓNNYYYNNY"}));
}

const Texts kOneDay = {"0005C3CRANE" + std::string(45, ' ') + "000000"};

INSTANTIATE_TEST_SUITE_P(
    Settings, FirstRun,
    testing::Values(FirstRunCase{"NewPlayerDay15", {}, {}, {2022, 4, 15, 12}, 0},
                    FirstRunCase{"NewPlayerDay16", {}, {}, {2022, 4, 16, 12}, 1},
                    FirstRunCase{"NewPlayerEarly", {}, {}, {2022, 4, 3, 12}, 0},
                    FirstRunCase{"NewPlayerChristmas", {}, {}, {2023, 12, 25, 12}, 619},
                    FirstRunCase{"ReturningPlayerKeepsAllDays", {}, kOneDay, {2023, 12, 25, 12}, 0},
                    FirstRunCase{"DamagedStoreWithOneRecord", {"0300"}, kOneDay, {2023, 12, 25, 12}, 0}),
    [](const auto& info) { return std::string(info.param.name); });

struct LoadCase {
  const char* name;
  Texts settings;
  bool noMinimumDay;
  int expectedMinimum;
  std::string expectedType;
  std::string expectedOptions;  // as read back through optionsRecord, with the type loaded
  Texts expectedStore;
};

class LoadSettings : public testing::TestWithParam<LoadCase> {};

TEST_P(LoadSettings, ReadsMigratesAndMendsTheStore) {
  const LoadCase& c = GetParam();
  TempDir dir;
  Launch launch(dir.path(), c.settings, {}, {2023, 12, 25, 12}, c.noMinimumDay);
  EXPECT_EQ(launch.view.minimumDayIndex, c.expectedMinimum);
  EXPECT_EQ(launch.view.gameType, c.expectedType);
  ContentView copy = launch.view;
  copy.gameType = c.expectedOptions.substr(0, c.expectedOptions.size() - 8);
  EXPECT_EQ(optionsRecord(copy), c.expectedOptions);
  EXPECT_EQ(reopenedTexts<SettingsDataManager>(dir.path()), c.expectedStore);
  EXPECT_EQ(launch.view.settingEntries.size(), 2u);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, LoadSettings,
    testing::Values(
        LoadCase{"Current", {"0042", "BYYNNNYYN"}, false, 42, "B", "BYYNNNYYN", {"0042", "BYYNNNYYN"}},
        LoadCase{"ShortRecordMigrates", {"0000", "CNN"}, false, 0, "C", "CNNYYYNNY", {"0000", "CNNYYYNNY"}},
        LoadCase{"LowerCaseYIsFalse", {"0007", "Xy"}, false, 7, "X", "XNNYYYNNY", {"0007", "XyNYYYNNY"}},
        LoadCase{
            "SpanishTypeIsOneCharacter", {"0001", "ÑYN"}, false, 1, "Ñ", "ÑYNYYYNNY", {"0001", "ÑYNYYYNNY"}},
        LoadCase{"TrimmedAndUnparsable",
                 {" 12x\n", "  DYYYYYYYY \n"},
                 false,
                 0,
                 "D",
                 "DYYYYYYYY",
                 {" 12x\n", "  DYYYYYYYY \n"}},
        LoadCase{
            "EmptyOptionsTakeTheStartType", {"0003", ""}, false, 3, "C", "ÓNNYYYNNY", {"0003", "ÓNNYYYNNY"}},
        LoadCase{
            "ThreeRecordsUseTheThird", {"0005", "CNN", "DYY"}, false, 5, "D", "DYYYYYNNY", {"0005", "DYY"}},
        // A damaged byte or an unknown type reads as the default game and is not written over.
        LoadCase{"StrayContinuationByte", {"0002", "\x80"}, false, 2, "C", "CNNYYYNNY", {"0002", "\x80"}},
        LoadCase{"TruncatedEnye", {"0002", "\xC3YY"}, false, 2, "C", "CYYYYYNNY", {"0002", "\xC3YY"}},
        LoadCase{"UnknownType", {"0002", "?NNYYYNNY"}, false, 2, "C", "CNNYYYNNY", {"0002", "?NNYYYNNY"}},
        LoadCase{
            "NoMinimumDaySwitch", {"0100", "CNNYYYNNY"}, true, 0, "C", "CNNYYYNNY", {"0000", "CNNYYYNNY"}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Settings, ARecordWithNothingLeftReadsAsTheDefaults) {
  EXPECT_EQ(optionsRecord(parseOptionsRecord("")), "CNNYYYNNY");
}

TEST(Settings, SavedOptionsAndMinimumDaySurviveAReopen) {
  TempDir dir;
  Launch launch(dir.path(), {"0042", "CNNYYYNNY"}, {}, {2023, 12, 25, 12});
  launch.view.gameType = "Ñ";
  launch.view.smartMode = true;
  launch.view.useQWERTY = false;
  {
    SettingsDataManager settingDM(dir.path());
    saveOptions(launch.view, settingDM);
    EXPECT_TRUE(writeMinimumDay(settingDM, 7));
  }
  EXPECT_EQ(reopenedTexts<SettingsDataManager>(dir.path()), (Texts{"0007", "ÑYNYYYNNN"}));
}

struct PresentationCase {
  const char* name;
  Texts stored;
  std::function<void(ContentView&, SettingsDataManager&)> change;
  Texts expected;  // the store afterwards
  bool colourBlind;
};

TEST(Presentation, StoredBesideTheOptionsWhereOlderVersionsLook) {
  const auto none = [](ContentView&, SettingsDataManager&) {};
  const auto turnOn = [](ContentView& view, SettingsDataManager& settingDM) {
    view.presentation.colourBlind = true;
    savePresentation(view, settingDM);
  };
  const auto saveSmartMode = [](ContentView& view, SettingsDataManager& settingDM) {
    view.smartMode = true;
    saveOptions(view, settingDM);
  };
  const PresentationCase cases[] = {
      {"a store of old stays as it was", {"0009", "BNNYYYNNY"}, none, {"0009", "BNNYYYNNY"}, false},
      // Read as an older version does, the third record is still the options.
      {"the first change goes before the options",
       {"0009", "BNNYYYNNY"},
       turnOn,
       {"0009", "#Y", "BNNYYYNNY"},
       true},
      {"options are saved behind it",
       {"0009", "#Y", "BNNYYYNNY"},
       saveSmartMode,
       {"0009", "#Y", "BYNYYYNNY"},
       true},
      {"a short options record is lengthened behind it",
       {"0009", "#N", "BN"},
       none,
       {"0009", "#N", "BNNYYYNNY"},
       false},
      {"a second change rewrites it in place",
       {"0009", "#N", "BNNYYYNNY"},
       turnOn,
       {"0009", "#Y", "BNNYYYNNY"},
       true},
      {"a damaged store still loses its second record",
       {"0009", "XNN", "BNNYYYNNY"},
       none,
       {"0009", "BNNYYYNNY"},
       false},
  };
  for (const PresentationCase& c : cases) {
    TempDir dir;
    {
      Launch launch(dir.path(), c.stored, {}, {2024, 1, 10, 12});
      SettingsDataManager settingDM(dir.path());
      c.change(launch.view, settingDM);
    }
    EXPECT_EQ(reopenedTexts<SettingsDataManager>(dir.path()), c.expected) << c.name;
    const Launch again(dir.path(), {}, {}, {2024, 1, 10, 12});
    EXPECT_EQ(again.view.presentation.colourBlind, c.colourBlind) << c.name;
    EXPECT_EQ(again.view.gameType, "B") << c.name;
  }
}

}  // namespace
}  // namespace tessarine
