// Launch, refresh and a whole submission over stores of growing history: none, about eleven years in
// five game types (18,000 records) and in all twenty-five types with lists (100,000 records).
#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <memory>
#include <sstream>

#include "catalogue/calendar.h"
#include "catalogue/list_source.h"
#include "catalogue/lists.h"
#include "session/session.h"
#include "storage/record_text.h"

namespace tessarine {
namespace {

constexpr int kOpenDays = 400;  // recent days of the shown type left empty for the submissions
// Day 4079 is June 1, 2033: room for 4,000 days of history before it.
constexpr LocalDateTime kNow{2033, 6, 1, 12, 0, 0};

// The played types and the rows of their records; the first is the shown type.
constexpr std::pair<const char*, const char*> kTypes[] = {
    {"C", "CRANESLATE"},   {"A", "CATDOGEEL"}, {"B", "TREESLAB"}, {"G", "101113"},   {"M", "9X4=362X8=16"},
    {"D", "BRANCHSTOLEN"}, {"E", "ABSENCE"},   {"F", "ABSOLUTE"}, {"W", "CASA"},     {"X", "PERRO"},
    {"2", "ABLE"},         {"3", "ABIDE"},     {"H", "123"},      {"I", "1009"},     {"J", "1234"},
    {"K", "10007"},        {"L", "12345"},     {"N", "9+4=13"},   {"O", "9X4=36"},   {"S", "10+4=14"},
    {"T", "10-4=06"},      {"U", "10X4=40"},   {"P", "10+40=50"}, {"Q", "10-40=30"}, {"R", "10X40=400"}};

// Records a history of `types` game types over `days` days holds.
struct HistorySize {
  int types, days;
};
constexpr HistorySize kSizes[] = {{0, 0}, {5, 3600}, {25, 4000}};

std::string record(int day, const std::string& type, int score, const std::string& rows) {
  std::string cells = rows;
  cells.resize(50, ' ');
  return paddedDayIndex(day) + type + std::to_string(score) + cells + "010000";
}

// Writes the history in one transaction: saving 18,000 records one commit each would take minutes.
void writeHistory(const std::filesystem::path& dir, HistorySize size) {
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
  const int today = 4079;
  for (int day = today - size.days; day < today; ++day) {
    for (int t = 0; t < size.types; ++t) {
      const auto& [type, rows] = kTypes[t];
      if (t == 0 && day >= today - kOpenDays) continue;
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
  explicit History(HistorySize size) : source(TESSARINE_RESOURCES_DIR), lists(source) {
    dir = std::filesystem::temp_directory_path() /
          ("tessarine_bench_" + std::to_string(getpid()) + "_" + std::to_string(size.types * size.days));
    std::filesystem::remove_all(dir);
    std::filesystem::create_directories(dir);
    writeHistory(dir, size);
  }
  ~History() { std::filesystem::remove_all(dir); }
  std::filesystem::path dir;
  DirectoryListSource source;
  Lists lists;
  FixedClock clock{kNow};
  SplitMix64 random{1};
  std::ostringstream log;
};

// One history per size, written on first use and removed at exit.
History& history(const benchmark::State& state) {
  static std::map<int, std::unique_ptr<History>> shared;
  const auto index = static_cast<std::size_t>(state.range(0));
  auto& slot = shared[static_cast<int>(index)];
  if (!slot) slot = std::make_unique<History>(kSizes[index]);
  return *slot;
}

void historySizes(benchmark::internal::Benchmark* bench) {
  bench->ArgName("size");
  for (int i = 0; i < 3; ++i)
    bench->Arg(i);
}

void BM_Launch(benchmark::State& state) {
  History& h = history(state);
  for (auto _ : state) {
    Session session(h.dir, h.lists, h.clock, h.random, h.log);
    session.launch();
    benchmark::DoNotOptimize(session.view().gamesPlayed);
  }
}
BENCHMARK(BM_Launch)->Apply(historySizes)->Unit(benchmark::kMillisecond);

void BM_Refresh(benchmark::State& state) {
  History& h = history(state);
  Session session(h.dir, h.lists, h.clock, h.random, h.log);
  session.launch();
  if (static_cast<int>(session.view().allDatesInfo.size()) > kOpenDays + 10)
    session.pickDate(kOpenDays + 10);  // a finished day, replayed
  for (auto _ : state) {
    session.reloadDay(true, true);
    benchmark::DoNotOptimize(session.view().maxStreakEnd);
  }
  state.counters["records"] = session.view().gamesPlayed;
}
BENCHMARK(BM_Refresh)->Apply(historySizes)->Unit(benchmark::kMicrosecond);

// The fetch that a refresh needs after a write: every record of the store.
void BM_FetchAllRecords(benchmark::State& state) {
  CoreDataManager core(history(state).dir);
  for (auto _ : state)
    benchmark::DoNotOptimize(core.getAllEntries().size());
}
BENCHMARK(BM_FetchAllRecords)->Apply(historySizes)->Unit(benchmark::kMicrosecond);

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
  History& h = history(state);
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
BENCHMARK(BM_Submission)->Apply(historySizes)->Unit(benchmark::kMicrosecond)->Iterations(kOpenDays - 20);

}  // namespace
}  // namespace tessarine
