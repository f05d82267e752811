#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <functional>

#include "catalogue/fatal_error.h"
#include "storage/data_manager.h"
#include "storage_test_support.h"

namespace tessarine {
namespace {

using testing_support::OtherConnection;
using testing_support::reopenedTexts;
using testing_support::TempDir;
using testing_support::texts;
using Texts = std::vector<std::string>;

TEST(Store, KeepsCreationOrderAndUpdatePositionAcrossReopen) {
  TempDir dir;
  {
    SettingsDataManager store(dir.path());
    for (const char* text : {"a", "b", "c"})
      ASSERT_TRUE(store.saveEntry(text));
    const auto entries = store.getAllEntries();
    ASSERT_TRUE(store.updateEntry(entries[1], "B"));
    ASSERT_TRUE(store.deleteEntry(entries[0]));
    ASSERT_TRUE(store.saveEntry("d"));
    ASSERT_TRUE(store.replaceEntry(store.getAllEntries()[0], "B2"));
  }
  EXPECT_EQ(reopenedTexts<SettingsDataManager>(dir.path()), (Texts{"c", "d", "B2"}));
  // Each manager has its own file: the others stay empty.
  EXPECT_TRUE(reopenedTexts<CoreDataManager>(dir.path()).empty());
}

struct FailureCase {
  const char* name;
  const char* setup;  // run on the other connection before the write
  std::function<bool(CoreDataManager&)> write;
  const char* line;
};

class FailedWrite : public testing::TestWithParam<FailureCase> {};

TEST_P(FailedWrite, PrintsTheLineAndLeavesTheStoreAsItWas) {
  TempDir dir;
  CoreDataManager store(dir.path(), std::chrono::milliseconds(0));
  ASSERT_TRUE(store.saveEntry("first"));
  ASSERT_TRUE(store.saveEntry("second"));
  {
    OtherConnection other(dir.path() / "TessarineCoreDataModel.sqlite");
    ASSERT_TRUE(other.exec(GetParam().setup));
    testing::internal::CaptureStdout();
    EXPECT_FALSE(GetParam().write(store));
    EXPECT_EQ(testing::internal::GetCapturedStdout().rfind(GetParam().line, 0), 0u);
  }
  EXPECT_EQ(texts(store), (Texts{"first", "second"}));
  EXPECT_EQ(reopenedTexts<CoreDataManager>(dir.path()), (Texts{"first", "second"}));
}

const char* kRefuseBoom =
    "CREATE TRIGGER refuse BEFORE INSERT ON entries WHEN NEW.text = 'boom' "
    "BEGIN SELECT RAISE(ABORT, 'refused'); END;";

INSTANTIATE_TEST_SUITE_P(
    Store, FailedWrite,
    testing::Values(FailureCase{"SaveWhileLocked", "BEGIN IMMEDIATE",
                                [](auto& s) { return s.saveEntry("x").has_value(); }, "Failed to save day "},
                    // The delete succeeds inside the transaction, the save fails: the delete must be undone.
                    FailureCase{
                        "ReplaceHalfDone", kRefuseBoom,
                        [](auto& s) { return s.replaceEntry(s.getAllEntries()[0], "boom").has_value(); },
                        "Failed to save context "}),
    [](const auto& info) { return std::string(info.param.name); });

// The message names the store; the bonus store has always used the settings text.
template <typename Manager>
std::string openFailure(const std::filesystem::path& directory) {
  try {
    Manager manager(directory);
  } catch (const FatalError& error) {
    return error.what();
  }
  return "opened";
}

TEST(Store, AStoreThatCannotBeOpenedIsFatal) {
  TempDir dir;
  const auto notADirectory = dir.path() / "stores";
  std::ofstream(notADirectory) << "a file where the stores should be";
  std::ofstream(dir.path() / "TessarineBonusData.sqlite") << std::string(4096, 'x');
  const std::pair<std::string, const char*> cases[] = {
      {openFailure<CoreDataManager>(notADirectory), "Core Data Store failed "},
      {openFailure<ChallengeDataManager>(notADirectory), "Challenge Data Store failed "},
      {openFailure<BonusDataManager>(dir.path()), "Settings Data Store failed "}};
  for (const auto& [what, prefix] : cases) {
    EXPECT_EQ(what.rfind(prefix, 0), 0u) << what;
    EXPECT_GT(what.size(), std::string_view(prefix).size());
  }
}

}  // namespace
}  // namespace tessarine
