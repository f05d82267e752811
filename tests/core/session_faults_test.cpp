// What the session does when the stores are locked or hold bad bytes: it tells, keeps everything,
// and tries again.
#include <gtest/gtest.h>

#include "session_fixture.h"
#include "storage_test_support.h"

namespace tessarine::testing {
namespace {

using testing_support::OtherConnection;

class SessionFaults : public SessionTest {
 protected:
  // A store that gives up at once when locked, so that a held lock is seen without waiting.
  Session& startImpatient() {
    session_ = std::make_unique<Session>(dir_, lists_, clock_, random_, log_, std::chrono::milliseconds(0));
    return *session_;
  }
};

TEST_F(SessionFaults, ALockedDayStoreNeverLeadsToAWriteOrDelete) {
  const std::string game = dayRecord(kToday, "C", 0, "CRANETOWEL");
  seedRecords({game});
  seedSettings(0);
  Session& session = startImpatient();
  ::testing::internal::CaptureStdout();
  {
    // A second copy of the game holds the day store for the whole launch.
    OtherConnection other(dir_ / "TessarineCoreDataModel.sqlite");
    ASSERT_TRUE(other.exec("BEGIN EXCLUSIVE"));
    session.launch();
    EXPECT_EQ(row(0), ".....");
    play("SLATE");  // while still locked: refused with a line
  }
  // The lock is gone: the next guess first brings back the stored game instead of replacing it.
  play("SLATE");
  const std::string out = ::testing::internal::GetCapturedStdout();
  EXPECT_NE(out.find("Failed to fetch TessarineCoreDataModel"), std::string::npos) << out;
  EXPECT_NE(out.find("Failed to save day the day records could not be read"), std::string::npos) << out;
  EXPECT_EQ(storedRecords(), std::vector<std::string>{game});
  EXPECT_EQ(row(0) + row(1), "CRANETOWEL");
  play("SLATE");
  ASSERT_EQ(storedRecords().size(), 1u);
  EXPECT_EQ(storedRecords()[0].substr(0, 22), "0649C0CRANETOWELSLATE ");
}

TEST_F(SessionFaults, ALockedSettingsStoreIsNotAFirstRun) {
  seedSettings(100, "DNNYYYNNY");
  Session& session = startImpatient();
  ::testing::internal::CaptureStdout();
  {
    OtherConnection other(dir_ / "TessarineSettingsData.sqlite");
    ASSERT_TRUE(other.exec("BEGIN EXCLUSIVE"));
    session.launch();
  }
  ::testing::internal::GetCapturedStdout();
  std::vector<std::string> settings;
  for (const auto& entry : SettingsDataManager(dir_).getAllEntries())
    settings.push_back(entry.text);
  EXPECT_EQ(settings, (std::vector<std::string>{"0100", "DNNYYYNNY"}));
}

TEST_F(SessionFaults, ACellAreaLongerThanTheBoardIsSkippedAndKept) {
  std::string stray = "CRANE";
  stray.resize(45, ' ');
  const std::string records[] = {
      dayRecord(kToday, "C", 0, stray + "Q"),  // one stray byte late in the cells
      dayRecord(kToday, "C", 0, std::string(50, 'W')),
      dayRecord(kToday, "C", 0, "WIELDWIELDWIELDWIELDWIELDWIELDWIELDWIELDWIELDWIELD"),
  };
  for (const std::string& bad : records) {
    seedRecords({bad});
    seedSettings(0);
    start();
    EXPECT_NE(log_.str().find("Skipped day record 0: "), std::string::npos) << bad;
    EXPECT_EQ(row(0), ".....") << bad;
    play("CRANE");
    EXPECT_EQ(storedRecords().front(), bad);
    EXPECT_EQ(storedRecords().size(), 2u);
    session_.reset();
    std::filesystem::remove_all(dir_);
    log_.str("");
  }
}

TEST_F(SessionFaults, AnOldRecordThatPaddingMakesADuplicateIsNamedWhenReplaced) {
  const std::string full = dayRecord(kToday, "C", 0, "CRANETOWEL");
  seedRecords({"0649C0CRANE", full});
  seedSettings(0);
  start();
  EXPECT_NE(log_.str().find("Padded day record 0 \"0649C0CRANE\""), std::string::npos) << log_.str();
  EXPECT_NE(log_.str().find("Deleted day record \"0649C0CRANE "), std::string::npos) << log_.str();
  EXPECT_EQ(storedRecords(), std::vector<std::string>{full});
  // A guess moving the day on replaces the shown record without a line.
  log_.str("");
  play("SLATE");
  EXPECT_EQ(log_.str(), "");
}

}  // namespace
}  // namespace tessarine::testing
