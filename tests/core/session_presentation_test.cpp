#include <gtest/gtest.h>

#include <functional>

#include "session/settings_load.h"
#include "storage_test_support.h"

namespace tessarine {
namespace {

using testing_support::reopenedTexts;
using testing_support::TempDir;
using Texts = std::vector<std::string>;

// A launch over a settings store holding `stored`, then `change` on the loaded record.
struct Launch {
  Launch(const std::filesystem::path& dir, const Texts& stored) : clock({2024, 1, 10, 12}) {
    {
      SettingsDataManager settingDM(dir);
      for (const auto& text : stored)
        settingDM.saveEntry(text);
    }
    SettingsDataManager settingDM(dir);
    CoreDataManager coreDM(dir);
    loadSettings(view, settingDM, coreDM, clock);
  }
  FixedClock clock;
  ContentView view;
};

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
      Launch launch(dir.path(), c.stored);
      SettingsDataManager settingDM(dir.path());
      c.change(launch.view, settingDM);
    }
    EXPECT_EQ(reopenedTexts<SettingsDataManager>(dir.path()), c.expected) << c.name;
    const Launch again(dir.path(), {});
    EXPECT_EQ(again.view.presentation.colourBlind, c.colourBlind) << c.name;
    EXPECT_EQ(again.view.gameType, "B") << c.name;
  }
}

}  // namespace
}  // namespace tessarine
