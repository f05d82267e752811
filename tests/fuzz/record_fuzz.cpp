// A seeded mutation fuzzer for everything that reads stored bytes: the day record and options
// readers, and a whole launch (padding, settings, refresh, replay, one guess) over random stores.
// Deterministic: a fixed seed and a fixed number of runs, so a failure reproduces exactly.
// Usage: tessarine_record_fuzz CORPUS_DIR LISTS_DIR [runs] [launches]
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/list_source.h"
#include "catalogue/lists.h"
#include "engine/random_source.h"
#include "session/session.h"
#include "storage/day_record.h"
#include "storage/settings_record.h"

namespace fs = std::filesystem;
using namespace tessarine;

namespace {

// Byte sequences that readers have tripped over: lone continuation bytes, a cut "Ñ", digits,
// blanks, the mark digits, a game type.
const std::vector<std::string> kTokens = {"\x80", "\xC3", "Ñ", " ",  "0", "9",    "3",
                                          "6",    "C",    "Ó", "\n", "=", "WIELD"};

std::string mutate(std::string text, SplitMix64& random) {
  const auto pick = [&](std::size_t n) { return n == 0 ? 0 : static_cast<std::size_t>(random.next() % n); };
  for (std::size_t round = 0, rounds = 1 + pick(4); round < rounds; ++round) {
    const std::size_t at = pick(text.size() + 1);
    switch (pick(5)) {
      case 0:
        if (!text.empty()) text[std::min(at, text.size() - 1)] ^= static_cast<char>(1u << pick(8));
        break;
      case 1:
        text.insert(at, kTokens[pick(kTokens.size())]);
        break;
      case 2:
        text.erase(at, pick(8));
        break;
      case 3:
        text.insert(at, text.substr(pick(text.size()), pick(20)));  // repeat a run of itself
        break;
      default:
        text.insert(at, 1, static_cast<char>(random.next()));
        break;
    }
  }
  return text;
}

// A corpus file: one record a line, "D " for the day store and "S " for the settings store.
struct Stores {
  std::vector<std::string> days, settings;
};

Stores split(const std::string& text) {
  Stores stores;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("S ", 0) == 0)
      stores.settings.push_back(line.substr(2));
    else if (line.size() >= 2)
      stores.days.push_back(line.substr(2));
  }
  return stores;
}

void readRecords(const Stores& stores) {
  for (const std::string& text : stores.days) {
    std::string problem;
    if (const auto record = parseDayRecord(Entry{1, text}, problem)) {
      restoredCells(*record);
      recordCharacter(*record, 60);
      ContentView view;
      restoreRowMarks(view, record->marks());
    }
  }
  for (const std::string& text : stores.settings)
    parseOptionsRecord(text);
}

// Launch on stores holding `stores`, play one guess, relaunch: nothing may crash or touch memory
// it does not own.
void launch(const Stores& stores, const fs::path& dir, const Lists& lists) {
  fs::remove_all(dir);
  {
    DataManagers seed(dir);
    for (const auto& text : stores.days)
      seed.coreDM.saveEntry(text);
    for (const auto& text : stores.settings)
      seed.settingDM.saveEntry(text);
  }
  FixedClock clock(LocalDateTime{2024, 1, 10, 12, 0, 0});
  SplitMix64 random(7);
  std::ostringstream log;
  {
    Session session(dir, lists, clock, random, log);
    session.launch();
    for (const char* symbol : {"C", "R", "A", "N", "E"})
      session.enterSymbol(symbol);
    session.submitGuess();
  }
  Session again(dir, lists, clock, random, log);
  again.launch();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: tessarine_record_fuzz CORPUS_DIR LISTS_DIR [runs] [launches]\n";
    return 2;
  }
  const int runs = argc > 3 ? std::stoi(argv[3]) : 20000;
  const int launches = argc > 4 ? std::stoi(argv[4]) : 200;
  std::vector<std::string> corpus;
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(argv[1]))
    files.push_back(entry.path());
  std::sort(files.begin(), files.end());  // directory order differs between machines
  for (const auto& file : files) {
    std::ifstream in(file, std::ios::binary);
    corpus.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  if (corpus.empty()) {
    std::cerr << "empty corpus\n";
    return 2;
  }
  DirectoryListSource source(argv[2]);
  Lists lists(source);
  const fs::path dir = fs::temp_directory_path() / ("tessarine-fuzz-" + std::to_string(::getpid()));
  SplitMix64 random(20240110);
  std::cout.setstate(std::ios::failbit);  // the stores' failure lines are expected here
  for (int run = 0; run < runs; ++run) {
    const Stores stores = split(mutate(corpus[run % corpus.size()], random));
    readRecords(stores);
    if (run < launches) launch(stores, dir, lists);
  }
  fs::remove_all(dir);
  std::cout.clear();
  std::cout << runs << " runs, " << std::min(runs, launches) << " launches, 0 crashes\n";
  return 0;
}
