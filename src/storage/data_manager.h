#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "storage/entry.h"

struct sqlite3;

namespace tessarine {

// How long a store waits for another process (a second copy of the game, a backup tool) to let go
// of its file before a read or write gives up. Long enough for a short lock, short enough that the
// screen does not look frozen.
constexpr std::chrono::milliseconds kBusyTimeout{3000};

// A store of string records on SQLite, one database file per store, named after the store.
// Records come back in creation order; an update keeps the record's place; every write is
// committed (synchronous=FULL) before the call returns, and a failed one leaves the store as it was.
class DataManager {
 public:
  // Opens or creates "<directory>/<storeName>.sqlite". A store that cannot be opened throws
  // FatalError(openFailureMessage + the database's own description).
  DataManager(const std::filesystem::path& directory, std::string storeName, std::string openFailureMessage,
              std::chrono::milliseconds busyTimeout = kBusyTimeout);
  virtual ~DataManager();
  DataManager(const DataManager&) = delete;
  DataManager& operator=(const DataManager&) = delete;

  // All records, or nullopt when the store could not be read (locked, unreadable): that prints
  // "Failed to fetch " with the store and the error. A failed fetch is not an empty store, and
  // nothing may be written or deleted on the strength of it.
  std::optional<std::vector<Entry>> fetchEntries() const;
  // For readers that only show what is there: a failed fetch reads as no records.
  std::vector<Entry> getAllEntries() const;
  // Hands each record to `visit` in creation order without holding them all; false when the
  // fetch failed part-way (what was visited is then not the whole store).
  bool forEachEntry(const std::function<void(Entry&&)>& visit) const;
  // At least how many records there are, so a reader can make room once (0 when it fails).
  std::size_t countEntries() const;
  // The oldest record, without reading the others.
  std::optional<Entry> firstEntry() const;
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

  // Sets the text of every record given, in place and in one transaction: all or none, and the
  // records keep their order whatever happens half-way.
  bool updateEntries(const std::vector<Entry>& entries);

  const std::string& storeName() const { return storeName_; }

 private:
  bool insert(const std::string& text, std::optional<Entry>& saved);
  bool remove(const Entry& entry);

  std::string storeName_;
  sqlite3* db_ = nullptr;
};

class CoreDataManager : public DataManager {
 public:
  explicit CoreDataManager(const std::filesystem::path& directory,
                           std::chrono::milliseconds busyTimeout = kBusyTimeout)
      : DataManager(directory, "TessarineCoreDataModel", "Core Data Store failed ", busyTimeout) {}
};

class SettingsDataManager : public DataManager {
 public:
  explicit SettingsDataManager(const std::filesystem::path& directory,
                               std::chrono::milliseconds busyTimeout = kBusyTimeout)
      : DataManager(directory, "TessarineSettingsData", "Settings Data Store failed ", busyTimeout) {}
};

class ChallengeDataManager : public DataManager {
 public:
  explicit ChallengeDataManager(const std::filesystem::path& directory,
                                std::chrono::milliseconds busyTimeout = kBusyTimeout)
      : DataManager(directory, "TessarineChallengeData", "Challenge Data Store failed ", busyTimeout) {}
};

// The bonus store reports a failed open with the settings text; players have always seen that line.
class BonusDataManager : public DataManager {
 public:
  explicit BonusDataManager(const std::filesystem::path& directory,
                            std::chrono::milliseconds busyTimeout = kBusyTimeout)
      : DataManager(directory, "TessarineBonusData", "Settings Data Store failed ", busyTimeout) {}
};

// The four stores, opened in the order the game has always opened them.
struct DataManagers {
  explicit DataManagers(const std::filesystem::path& directory,
                        std::chrono::milliseconds busyTimeout = kBusyTimeout)
      : coreDM(directory, busyTimeout),
        settingDM(directory, busyTimeout),
        challengeDM(directory, busyTimeout),
        bonusDM(directory, busyTimeout) {}
  CoreDataManager coreDM;
  SettingsDataManager settingDM;
  ChallengeDataManager challengeDM;
  BonusDataManager bonusDM;
};

}  // namespace tessarine
