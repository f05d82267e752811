#include "storage/data_manager.h"

#include <sqlite3.h>

#include <iostream>

#include "catalogue/fatal_error.h"

namespace tessarine {
namespace {

constexpr int kSchemaVersion = 1;

// A prepared statement that finalises itself.
class Statement {
 public:
  Statement(sqlite3* db, const char* sql) { rc_ = sqlite3_prepare_v2(db, sql, -1, &stmt_, nullptr); }
  ~Statement() { sqlite3_finalize(stmt_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  bool ok() const { return rc_ == SQLITE_OK; }
  sqlite3_stmt* get() const { return stmt_; }

 private:
  sqlite3_stmt* stmt_ = nullptr;
  int rc_ = SQLITE_ERROR;
};

bool exec(sqlite3* db, const char* sql) {
  return sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// Runs `steps` in one transaction; on any failure the store is rolled back and left as it was.
template <typename Steps>
bool write(sqlite3* db, Steps steps, const char* failureLine) {
  bool done = exec(db, "BEGIN IMMEDIATE") && steps() && exec(db, "COMMIT");
  if (!done) {
    std::cout << failureLine << sqlite3_errmsg(db) << std::endl;
    exec(db, "ROLLBACK");
  }
  return done;
}

// Prepares, binds and steps one statement to its end.
template <typename Bind>
bool run(sqlite3* db, const char* sql, Bind bind) {
  Statement statement(db, sql);
  return statement.ok() && bind(statement.get()) && sqlite3_step(statement.get()) == SQLITE_DONE;
}

int schemaVersion(sqlite3* db) {
  Statement statement(db, "PRAGMA user_version");
  return statement.ok() && sqlite3_step(statement.get()) == SQLITE_ROW
             ? sqlite3_column_int(statement.get(), 0)
             : -1;
}

bool bindText(sqlite3_stmt* stmt, int index, const std::string& text) {
  return sqlite3_bind_text(stmt, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT) ==
         SQLITE_OK;
}

// The (id, text) row a statement stands on; a NULL text reads as empty.
Entry rowEntry(sqlite3_stmt* statement) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, 1));
  const int bytes = sqlite3_column_bytes(statement, 1);
  return {sqlite3_column_int64(statement, 0),
          text != nullptr ? std::string(text, static_cast<std::size_t>(bytes)) : std::string()};
}

// A new store is made in one commit: every commit costs the disk several flushes, and a first
// start creates four stores.
bool createSchema(sqlite3* db) {
  const std::string statements =
      "BEGIN; CREATE TABLE IF NOT EXISTS entries (id INTEGER PRIMARY KEY AUTOINCREMENT, text TEXT); "
      "PRAGMA user_version=" +
      std::to_string(kSchemaVersion) + "; COMMIT;";
  if (exec(db, statements.c_str())) return true;
  exec(db, "ROLLBACK");
  return false;
}

}  // namespace

DataManager::DataManager(const std::filesystem::path& directory, std::string storeName,
                         std::string openFailureMessage, std::chrono::milliseconds busyTimeout)
    : storeName_(std::move(storeName)) {
  std::error_code ignored;
  std::filesystem::create_directories(directory, ignored);
  const std::string path = (directory / (storeName_ + ".sqlite")).string();
  int rc = sqlite3_open_v2(path.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  if (rc == SQLITE_OK) rc = sqlite3_busy_timeout(db_, static_cast<int>(busyTimeout.count()));
  if (rc == SQLITE_OK) {
    // One table of one text attribute; rowid order is creation order, and an update keeps it.
    // An existing store is only read here: opening it writes nothing.
    const bool ready =
        exec(db_, "PRAGMA synchronous=FULL") && (schemaVersion(db_) == kSchemaVersion || createSchema(db_));
    if (!ready) rc = sqlite3_errcode(db_) == SQLITE_OK ? SQLITE_ERROR : sqlite3_errcode(db_);
  }
  if (rc != SQLITE_OK) {
    const std::string description = db_ != nullptr ? sqlite3_errmsg(db_) : sqlite3_errstr(rc);
    sqlite3_close(db_);
    db_ = nullptr;
    throw FatalError(openFailureMessage + description);
  }
}

DataManager::~DataManager() {
  sqlite3_close(db_);
}

std::optional<std::vector<Entry>> DataManager::fetchEntries() const {
  std::vector<Entry> entries;
  if (!forEachEntry([&entries](Entry&& entry) { entries.push_back(std::move(entry)); })) return std::nullopt;
  return entries;
}

std::vector<Entry> DataManager::getAllEntries() const {
  return fetchEntries().value_or(std::vector<Entry>{});
}

bool DataManager::forEachEntry(const std::function<void(Entry&&)>& visit) const {
  Statement statement(db_, "SELECT id, text FROM entries ORDER BY id");
  int rc = SQLITE_ERROR;
  if (statement.ok()) {
    while ((rc = sqlite3_step(statement.get())) == SQLITE_ROW)
      visit(rowEntry(statement.get()));
  }
  if (rc != SQLITE_DONE) {
    std::cout << "Failed to fetch " << storeName_ << " " << sqlite3_errmsg(db_) << std::endl;
    return false;
  }
  return true;
}

std::size_t DataManager::countEntries() const {
  // The highest id bounds the count from above and, unlike count(*), costs no scan.
  Statement statement(db_, "SELECT max(id) FROM entries");
  if (!statement.ok() || sqlite3_step(statement.get()) != SQLITE_ROW) return 0;
  return static_cast<std::size_t>(sqlite3_column_int64(statement.get(), 0));
}

std::optional<Entry> DataManager::firstEntry() const {
  Statement statement(db_, "SELECT id, text FROM entries ORDER BY id LIMIT 1");
  if (!statement.ok() || sqlite3_step(statement.get()) != SQLITE_ROW) return std::nullopt;
  return rowEntry(statement.get());
}

std::optional<Entry> DataManager::saveEntry(const std::string& text) {
  std::optional<Entry> saved;
  const bool ok = write(
      db_, [&] { return insert(text, saved); }, "Failed to save day ");
  return ok ? saved : std::nullopt;
}

bool DataManager::updateEntry(const Entry& entry, const std::string& text) {
  return write(
      db_,
      [&] {
        return run(db_, "UPDATE entries SET text = ?1 WHERE id = ?2", [&](sqlite3_stmt* s) {
          return bindText(s, 1, text) && sqlite3_bind_int64(s, 2, entry.id) == SQLITE_OK;
        });
      },
      "Failed to save context ");
}

bool DataManager::updateEntries(const std::vector<Entry>& entries) {
  return write(
      db_,
      [&] {
        Statement statement(db_, "UPDATE entries SET text = ?1 WHERE id = ?2");
        if (!statement.ok()) return false;
        for (const Entry& entry : entries) {
          sqlite3_stmt* s = statement.get();
          if (!bindText(s, 1, entry.text) || sqlite3_bind_int64(s, 2, entry.id) != SQLITE_OK ||
              sqlite3_step(s) != SQLITE_DONE || sqlite3_reset(s) != SQLITE_OK)
            return false;
        }
        return true;
      },
      "Failed to save context ");
}

bool DataManager::deleteEntry(const Entry& entry) {
  return write(
      db_, [&] { return remove(entry); }, "Failed to save context ");
}

std::optional<Entry> DataManager::replaceEntry(const Entry& entry, const std::string& text) {
  std::optional<Entry> saved;
  const bool ok = write(
      db_, [&] { return remove(entry) && insert(text, saved); }, "Failed to save context ");
  return ok ? saved : std::nullopt;
}

bool DataManager::replaceEntry(const Entry& entry, const std::vector<std::string>& texts) {
  return write(
      db_,
      [&] {
        bool ok = remove(entry);
        std::optional<Entry> saved;
        for (const std::string& text : texts)
          ok = ok && insert(text, saved);
        return ok;
      },
      "Failed to save context ");
}

bool DataManager::insert(const std::string& text, std::optional<Entry>& saved) {
  const bool ok = run(db_, "INSERT INTO entries (text) VALUES (?1)",
                      [&](sqlite3_stmt* s) { return bindText(s, 1, text); });
  if (ok) saved = Entry{sqlite3_last_insert_rowid(db_), text};
  return ok;
}

bool DataManager::remove(const Entry& entry) {
  return run(db_, "DELETE FROM entries WHERE id = ?1",
             [&](sqlite3_stmt* s) { return sqlite3_bind_int64(s, 1, entry.id) == SQLITE_OK; });
}

}  // namespace tessarine
