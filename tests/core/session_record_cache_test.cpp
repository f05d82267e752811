// The session's copy of the day records against the store itself, after every kind of write.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "session/day_record_cache.h"
#include "storage_test_support.h"

namespace tessarine {
namespace {

using testing_support::OtherConnection;
using testing_support::TempDir;

std::string dayRecord(int day, char score) {
  return "0" + std::to_string(100 + day) + "C" + score + std::string(50, ' ').replace(0, 5, "CRANE") +
         "000000";
}

// A copy kept by hand, as the session keeps it: only what the store confirmed is applied.
struct Copy {
  TempDir dir;
  CoreDataManager store{dir.path()};
  DayRecordCache cache;
  std::ostringstream log;

  void save(const std::string& text) {
    if (const auto saved = store.saveEntry(text)) cache.saved(*saved);
  }
  void replaceFirst(const std::string& text) {
    const Entry first = store.getAllEntries().front();
    if (const auto saved = store.replaceEntry(first, text)) {
      cache.deleted(first.id);
      cache.saved(*saved);
    }
  }
  void removeFirst() {
    const Entry first = store.getAllEntries().front();
    if (store.deleteEntry(first)) cache.deleted(first.id);
  }
  std::vector<std::string> copied() {
    std::vector<std::string> result;
    for (const DayRecord& record : cache.records(store, log))
      result.push_back(record.entry.text);
    return result;
  }
  std::vector<std::string> stored() {
    DayRecordCache fresh;
    std::ostringstream ignored;
    std::vector<std::string> result;
    for (const DayRecord& record : fresh.records(store, ignored))
      result.push_back(record.entry.text);
    return result;
  }
};

struct WriteCase {
  const char* name;
  const char* otherConnection;  // run on a second connection first; empty for none
  std::function<void(Copy&)> write;
};

class RecordCopy : public testing::TestWithParam<WriteCase> {};

TEST_P(RecordCopy, AgreesWithTheStoreAfterTheWrite) {
  Copy copy;
  for (int day = 0; day < 3; ++day)
    copy.save(dayRecord(day, '0'));
  ASSERT_EQ(copy.copied(), copy.stored());
  {
    OtherConnection other(copy.dir.path() / "TessarineCoreDataModel.sqlite");
    if (*GetParam().otherConnection != '\0') ASSERT_TRUE(other.exec(GetParam().otherConnection));
    testing::internal::CaptureStdout();
    GetParam().write(copy);
    testing::internal::GetCapturedStdout();
  }
  EXPECT_EQ(copy.copied(), copy.stored());
  EXPECT_EQ(copy.copied().size(), copy.stored().size());
}

const char* kRefuseReplace =
    "CREATE TRIGGER refuse BEFORE INSERT ON entries WHEN NEW.text LIKE '%REFUSED%' "
    "BEGIN SELECT RAISE(ABORT, 'refused'); END;";

INSTANTIATE_TEST_SUITE_P(
    Session, RecordCopy,
    testing::Values(WriteCase{"Save", "", [](Copy& c) { c.save(dayRecord(7, '3')); }},
                    WriteCase{"UnreadableSave", "", [](Copy& c) { c.save("not a day record"); }},
                    WriteCase{"Replace", "", [](Copy& c) { c.replaceFirst(dayRecord(0, '2')); }},
                    WriteCase{"Delete", "", [](Copy& c) { c.removeFirst(); }},
                    WriteCase{"SaveUnderALock", "BEGIN IMMEDIATE",
                              [](Copy& c) { c.save(dayRecord(8, '1')); }},
                    WriteCase{"DeleteUnderALock", "BEGIN IMMEDIATE", [](Copy& c) { c.removeFirst(); }},
                    WriteCase{"ReplaceRefusedHalfWay", kRefuseReplace,
                              [](Copy& c) { c.replaceFirst(dayRecord(0, '2').replace(11, 7, "REFUSED")); }}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace tessarine
