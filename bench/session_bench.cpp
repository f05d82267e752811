// The refresh and a whole submission on ten years of history in five game types.
#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "catalogue/calendar.h"
#include "catalogue/list_source.h"
#include "catalogue/lists.h"
#include "session/session.h"
#include "storage/record_text.h"

namespace tessarine {
namespace {

constexpr int kYears = 10;
constexpr int kDays = 365 * kYears;
constexpr int kOpenDays = 400;  // recent days of the shown type left empty for the submissions
// Day 3650 is March 29, 2032.
constexpr LocalDateTime kNow{2032, 3, 29, 12, 0, 0};

std::string record(int day, const std::string& type, int score, const std::string& rows) {
  std::string cells = rows;
  cells.resize(50, ' ');
  return paddedDayIndex(day) + type + std::to_string(score) + cells + "010000";
}

// Writes the history in one transaction: saving 18,000 records one commit each would take minutes.
void writeHistory(const std::filesystem::path& dir) {
  { CoreDataManager create(dir); }
  {
    SettingsDataManager settings(dir);
    settings.saveEntry("0000");
    settings.saveEntry("CNNYYYYNY");  // hints on
  }
  sqlite3* db = nullptr;
  sqlite3_open((dir / "TessarineCoreDataModel.sqlite").c_str(), &db);
  sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
  sqlite3_stmt* insert = nullptr;
  sqlite3_prepare_v2(db, "INSERT INTO entries (text) VALUES (?1)", -1, &insert, nullptr);
  const std::pair<const char*, const char*> types[] = {
      {"C", "CRANESLATE"}, {"A", "CATDOGEEL"}, {"B", "TREESLAB"}, {"G", "101113"}, {"M", "9X4=362X8=16"}};
  for (int day = 0; day < kDays; ++day) {
    for (const auto& [type, rows] : types) {
      if (std::string(type) == "C" && day >= kDays - kOpenDays) continue;
      const std::string text = record(day, type, day % 7 == 3 ? 0 : 1 + day % 5, rows);
      sqlite3_bind_text(insert, 1, text.c_str(), -1, SQLITE_TRANSIENT);
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
  }
  sqlite3_finalize(insert);
  sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
  sqlite3_close(db);
}

struct History {
  History() : source(TESSARINE_RESOURCES_DIR), lists(source) {
    dir = std::filesystem::temp_directory_path() / ("tessarine_bench_" + std::to_string(getpid()));
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    writeHistory(dir);
  }
  ~History() { std::filesystem::remove_all(dir); }
  std::filesystem::path dir;
  DirectoryListSource source;
  Lists lists;
  FixedClock clock{kNow};
  SplitMix64 random{1};
  std::ostringstream log;
};

History& history() {
  static History shared;
  return shared;
}

void BM_Launch(benchmark::State& state) {
  History& h = history();
  for (auto _ : state) {
    Session session(h.dir, h.lists, h.clock, h.random, h.log);
    session.launch();
    benchmark::DoNotOptimize(session.view().gamesPlayed);
  }
}
BENCHMARK(BM_Launch)->Unit(benchmark::kMillisecond);

void BM_Refresh(benchmark::State& state) {
  History& h = history();
  Session session(h.dir, h.lists, h.clock, h.random, h.log);
  session.launch();
  session.pickDate(kOpenDays + 10);  // a finished day, replayed
  for (auto _ : state) {
    session.reloadDay(true, true);
    benchmark::DoNotOptimize(session.view().maxStreakEnd);
  }
  state.counters["records"] = session.view().gamesPlayed;
}
BENCHMARK(BM_Refresh)->Unit(benchmark::kMicrosecond);

// The fetch that a refresh needs after a write: every record of the store.
void BM_FetchAllRecords(benchmark::State& state) {
  CoreDataManager core(history().dir);
  for (auto _ : state)
    benchmark::DoNotOptimize(core.getAllEntries().size());
}
BENCHMARK(BM_FetchAllRecords)->Unit(benchmark::kMicrosecond);

// One commit of the store alone, to tell the store's fsync from the session's own work.
void BM_StoreCommit(benchmark::State& state) {
  const auto dir = std::filesystem::temp_directory_path() / ("tessarine_commit_" + std::to_string(getpid()));
  std::filesystem::create_directories(dir);
  {
    CoreDataManager core(dir);
    for (auto _ : state)
      core.saveEntry(record(1, "Z", 0, "ABC"));
  }
  std::filesystem::remove_all(dir);
}
BENCHMARK(BM_StoreCommit)->Unit(benchmark::kMicrosecond);

// A first guess on an empty day: store, refetch of the new record, refresh with replay, hint filter.
void BM_Submission(benchmark::State& state) {
  History& h = history();
  Session session(h.dir, h.lists, h.clock, h.random, h.log);
  session.launch();
  int line = 1;
  for (auto _ : state) {
    state.PauseTiming();
    session.pickDate(line++);
    for (const char* symbol : {"S", "L", "A", "T", "E"})
      session.enterSymbol(symbol);
    state.ResumeTiming();
    session.submitGuess();
    benchmark::DoNotOptimize(session.view().numberOfHints);
  }
}
BENCHMARK(BM_Submission)->Unit(benchmark::kMicrosecond)->Iterations(kOpenDays - 20);

}  // namespace
}  // namespace tessarine
