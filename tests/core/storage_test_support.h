#pragma once

#include <sqlite3.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <vector>

#include "storage/data_manager.h"

namespace tessarine::testing_support {

// A fresh directory for one test's stores, removed afterwards.
class TempDir {
 public:
  TempDir() {
    static std::atomic<int> counter{0};
    path_ = std::filesystem::temp_directory_path() /
            ("tessarine-storage-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::vector<std::string> texts(const DataManager& manager) {
  std::vector<std::string> result;
  for (const Entry& entry : manager.getAllEntries())
    result.push_back(entry.text);
  return result;
}

// Another connection to the same file, to hold locks or plant a trigger.
struct OtherConnection {
  explicit OtherConnection(const std::filesystem::path& file) { sqlite3_open(file.c_str(), &db); }
  ~OtherConnection() { sqlite3_close(db); }
  OtherConnection(const OtherConnection&) = delete;
  OtherConnection& operator=(const OtherConnection&) = delete;
  bool exec(const char* sql) { return sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK; }
  sqlite3* db = nullptr;
};

// What a fresh process would read from disk.
template <typename Manager>
std::vector<std::string> reopenedTexts(const std::filesystem::path& directory) {
  Manager manager(directory);
  return texts(manager);
}

}  // namespace tessarine::testing_support
