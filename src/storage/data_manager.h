#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "storage/entry.h"

struct sqlite3;

namespace tessarine {

// A store of string records on SQLite, one database file per store, named after the store.
// Records come back in creation order; an update keeps the record's place; every write is
// committed (synchronous=FULL) before the call returns, and a failed one leaves the store as it was.
class DataManager {
 public:
  // Opens or creates "<directory>/<storeName>.sqlite". A store that cannot be opened throws
  // FatalError(openFailureMessage + the database's own description).
  DataManager(const std::filesystem::path& directory, std::string storeName, std::string openFailureMessage);
  virtual ~DataManager();
  DataManager(const DataManager&) = delete;
  DataManager& operator=(const DataManager&) = delete;

  // A failed fetch is an empty list, as every caller treats it.
  std::vector<Entry> getAllEntries() const;
  // Failures print "Failed to save day " / "Failed to save context " and the error, and return false.
  // A save returns the new record with its handle, so a caller can keep its copy exact.
  std::optional<Entry> saveEntry(const std::string& text);
  bool updateEntry(const Entry& entry, const std::string& text);
  bool deleteEntry(const Entry& entry);
  // Deletes the record and saves `text` as a new last record in one transaction, so that a failure
  // half-way can never lose the record. Day records move this way, never in place.
  std::optional<Entry> replaceEntry(const Entry& entry, const std::string& text);
  // The same with several new last records, saved in order: a record moves behind new ones.
  bool replaceEntry(const Entry& entry, const std::vector<std::string>& texts);

  const std::string& storeName() const { return storeName_; }

 private:
  bool insert(const std::string& text, std::optional<Entry>& saved);
  bool remove(const Entry& entry);

  std::string storeName_;
  sqlite3* db_ = nullptr;
};

class CoreDataManager : public DataManager {
 public:
  explicit CoreDataManager(const std::filesystem::path& directory)
      : DataManager(directory, "TessarineCoreDataModel", "Core Data Store failed ") {}
};

class SettingsDataManager : public DataManager {
 public:
  explicit SettingsDataManager(const std::filesystem::path& directory)
      : DataManager(directory, "TessarineSettingsData", "Settings Data Store failed ") {}
};

class ChallengeDataManager : public DataManager {
 public:
  explicit ChallengeDataManager(const std::filesystem::path& directory)
      : DataManager(directory, "TessarineChallengeData", "Challenge Data Store failed ") {}
};

// The bonus store reports a failed open with the settings text; players have always seen that line.
class BonusDataManager : public DataManager {
 public:
  explicit BonusDataManager(const std::filesystem::path& directory)
      : DataManager(directory, "TessarineBonusData", "Settings Data Store failed ") {}
};

// The four stores, opened in the order the game has always opened them.
struct DataManagers {
  explicit DataManagers(const std::filesystem::path& directory)
      : coreDM(directory), settingDM(directory), challengeDM(directory), bonusDM(directory) {}
  CoreDataManager coreDM;
  SettingsDataManager settingDM;
  ChallengeDataManager challengeDM;
  BonusDataManager bonusDM;
};

}  // namespace tessarine
