// Guess engine speed against the real lists: the hint filter over a whole list on the first row,
// and the work the replay does for one row.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine/scoring.h"
#include "engine/smart_mode.h"
#include "session/content_view.h"
#include "session/game_setup.h"

namespace tessarine {
namespace {

const Lists& realLists() {
  static const DirectoryListSource source(TESSARINE_RESOURCES_DIR);
  static const Lists lists(source);
  return lists;
}

// False (and the benchmark skipped) when the list files of the type are not there.
bool haveLists(benchmark::State& state, const GameTypeInfo& info) {
  for (std::string_view name : {info.answerFile, info.validityFile}) {
    const auto path = std::filesystem::path(TESSARINE_RESOURCES_DIR) / (std::string(name) + ".txt");
    if (!name.empty() && !std::filesystem::exists(path)) {
      state.SkipWithError(("missing " + path.string()).c_str());
      return false;
    }
  }
  return true;
}

void enterRow(ContentView& view, int row, const std::string& guess) {
  view.activeRow = row;
  const auto symbols = splitSymbols(guess);
  for (int c = 0; c < view.gameLetters; ++c) {
    view.cellLetter[static_cast<std::size_t>(row * view.gameLetters + c)] =
        symbols[static_cast<std::size_t>(c)];
  }
}

// The validity list's entry at `line`, reduced to a row's worth of symbols.
std::string listGuess(const Lists& lists, const GameTypeInfo& info, std::size_t line) {
  const auto& lines = lists.file(std::string(info.validityFile)).lines;
  const auto symbols = splitSymbols(trimView(lines[line % (lines.size() - 1)]));
  std::string guess;
  for (int c = 0; c < info.tiles; ++c)
    guess += symbols[static_cast<std::size_t>(c)];
  return guess;
}

void BM_ComputeHintsFirstRow(benchmark::State& state, std::string_view type) {
  const GameTypeInfo& info = *findGameType(type);
  if (!haveLists(state, info)) return;
  const Lists& lists = realLists();
  ContentView view;
  view.gameType = std::string(type);
  applyCatalogue(view);
  view.answer = Answer(lists.answer(type, 0));
  const std::string guess = listGuess(lists, info, 100);
  enterRow(view, 0, guess);
  scoreGuess(view, guess);
  updateKnowledge(view, view, view);
  computeHints(view, view, view, lists, view.gameType,
               0);  // the list's candidates are built once per process
  for (auto _ : state) {
    view.allHints.clear();  // start over from the whole list each time
    computeHints(view, view, view, lists, view.gameType, 0);
    benchmark::DoNotOptimize(view.allHints.data());
  }
  state.counters["survivors"] = view.numberOfHints;
  state.counters["list"] = static_cast<double>(lists.file(std::string(info.validityFile)).lines.size());
  state.SetLabel(guess + " vs " + view.answer.text);
}

BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, A_3letters, "A")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, B_4letters, "B")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, C_5letters, "C")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, D_6letters, "D")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, E_7letters, "E")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, F_8letters, "F")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, W_4spanish, "W")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, X_5spanish, "X")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, G_3primes, "G")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, I_4primes, "I")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_ComputeHintsFirstRow, K_5primes, "K")->Unit(benchmark::kMicrosecond);

// The replay's work for the sixth row of a six-row board: the four checks against the five rows
// above, the scoring, and the five knowledge passes.
void BM_ReplayOneRow(benchmark::State& state) {
  const GameTypeInfo& info = *findGameType("C");
  if (!haveLists(state, info)) return;
  const Lists& lists = realLists();
  ContentView view;
  view.gameType = "C";
  applyCatalogue(view);
  view.answer = Answer(lists.answer("C", 0));
  for (int row = 0; row < 6; ++row) {
    const std::string guess = listGuess(lists, info, 100 + 977 * static_cast<std::size_t>(row));
    enterRow(view, row, guess);
    if (row < 5) scoreGuess(view, guess);
  }
  const std::string last = rowWord(view, 5);
  for (auto _ : state) {
    benchmark::DoNotOptimize(passesSmartMode(view));
    scoreGuess(view, last);
    updateKnowledge(view, view, view);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_ReplayOneRow)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tessarine
