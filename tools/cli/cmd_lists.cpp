// `lists check`: the maintainers' gate on the list files. Everything is read through the game's own
// loader, keypads come from the game's catalogue and equations are judged by the game's validator, so
// a list that passes here is a list the game will accept.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"
#include "cli/command.h"
#include "engine/equation.h"

namespace tessarine::cli {
namespace {

constexpr int kMinimumGap = 30;                              // no answer comes back within a month
constexpr std::size_t kSmallPool = 2 * kMinimumGap;          // below this the month rule cannot hold
constexpr std::uintmax_t kMaximumBytes = 25u * 1024 * 1024;  // the lists travel inside the app

struct Problems {
  std::vector<std::string> found;
  void add(const std::string& file, const std::string& what) { found.push_back(file + ": " + what); }
};

// The entries of a file: its lines without the empty one that the final newline leaves.
std::vector<std::string_view> entriesOf(const ListFile& file) {
  std::vector<std::string_view> entries(file.lines.begin(), file.lines.end());
  if (!entries.empty() && entries.back().empty()) entries.pop_back();
  return entries;
}

// What a type's keypad lets a player type; "=" is written by the game itself in equation rows.
struct Keys {
  std::set<std::string, std::less<>> symbols;
  bool plus = true, minus = true, times = true, divide = true;
};

Keys keysOf(const GameTypeInfo& info) {
  const KeypadLayout layout = keypadLayout(&info);
  Keys keys;
  for (int k = 0; k < layout.number; ++k)
    keys.symbols.insert(std::string(layout.letters[static_cast<std::size_t>(k)]));
  if (info.isEquation()) keys.symbols.insert("=");
  keys.plus = keys.minus = info.operators != OperatorSet::multiplyDivide;
  keys.times = keys.divide = info.operators != OperatorSet::addSubtract;
  return keys;
}

// Empty when `word` is exactly `tiles` keypad symbols, else what is wrong with it.
std::string shapeError(std::string_view word, int tiles, const Keys& keys) {
  const auto symbols = splitSymbols(word);
  if (static_cast<int>(symbols.size()) != tiles) {
    return "'" + std::string(word) + "' has " + std::to_string(symbols.size()) + " characters, not " +
           std::to_string(tiles);
  }
  for (const auto& symbol : symbols) {
    if (!keys.symbols.contains(symbol))
      return "'" + std::string(word) + "' holds '" + symbol + "', which is no key";
  }
  return {};
}

bool isOperator(char c) {
  return c == '+' || c == '-' || c == 'X' || c == '/';
}

// The rules an equation answer keeps beyond being true: fair numbers, fair operators.
std::string equationError(std::string_view eq, const GameTypeInfo& info, const Keys& keys,
                          std::set<char>& operatorsSeen) {
  const bool valid = info.tiles == 6 ? isValidOneOperatorEquation(eq) : isValidTwoOperatorEquation(eq);
  const std::string quoted = "'" + std::string(eq) + "'";
  if (!valid) return quoted + " is refused by the game's validator";
  const auto equals = eq.find('=');
  if (equals == std::string_view::npos || eq.find('=', equals + 1) != std::string_view::npos) {
    return quoted + " needs exactly one '='";
  }
  if (equals == 0 || equals + 1 == eq.size()) return quoted + " has '=' first or last";
  std::string number;
  char before = 0;  // the operator in front of the number being read
  for (std::size_t i = 0; i <= eq.size(); ++i) {
    const char c = i < eq.size() ? eq[i] : '=';
    if (c >= '0' && c <= '9') {
      number += c;
      continue;
    }
    if (number.empty()) return quoted + " has a sign or a negative number";
    if (number.size() > 1 && number[0] == '0') return quoted + " has a leading zero";
    if (before == '/' && number == "0") return quoted + " divides by zero";
    if (isOperator(c)) {
      const bool allowed = (c == '+' && keys.plus) || (c == '-' && keys.minus) || (c == 'X' && keys.times) ||
                           (c == '/' && keys.divide);
      if (!allowed) return quoted + " uses '" + std::string(1, c) + "', whose key this type switches off";
      operatorsSeen.insert(c);
    }
    before = c;
    number.clear();
  }
  return {};
}

// Figures of a schedule, and the first place where it leaves the round-walk order.
struct Schedule {
  std::size_t distinct = 0;
  int smallestGap = 0;  // 0 when no answer is used twice within the modulus
  std::string error;
};

Schedule scheduleOf(const std::vector<std::string_view>& entries, int modulus) {
  Schedule result;
  std::unordered_map<std::string_view, std::vector<int>> days;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (static_cast<int>(i) < modulus) days[entries[i]].push_back(static_cast<int>(i));
  }
  result.distinct = std::unordered_set<std::string_view>(entries.begin(), entries.end()).size();
  // Rounds: day d belongs to round d / pool; within one round nothing comes twice.
  std::unordered_map<std::string_view, std::size_t> lastDay;
  for (std::size_t i = 0; i < entries.size() && result.error.empty(); ++i) {
    const auto found = lastDay.find(entries[i]);
    if (found != lastDay.end() && found->second / result.distinct == i / result.distinct) {
      result.error = "'" + std::string(entries[i]) + "' comes back on day " + std::to_string(i) +
                     " before the pool of " + std::to_string(result.distinct) + " is used up";
    }
    lastDay[entries[i]] = i;
  }
  for (const auto& [entry, list] : days) {
    if (list.size() < 2) continue;
    int gap = list.front() + modulus - list.back();  // across the wrap back to the first line
    for (std::size_t k = 1; k < list.size(); ++k)
      gap = std::min(gap, list[k] - list[k - 1]);
    if (result.smallestGap == 0 || gap < result.smallestGap) result.smallestGap = gap;
  }
  return result;
}

std::set<std::string> primesOfLength(int digits) {
  int low = 1;
  for (int d = 1; d < digits; ++d)
    low *= 10;
  const int high = low * 10;
  std::vector<bool> composite(static_cast<std::size_t>(high), false);
  std::set<std::string> primes;
  for (int n = 2; n < high; ++n) {
    if (composite[static_cast<std::size_t>(n)]) continue;
    if (n >= low) primes.insert(std::to_string(n));
    for (long long m = static_cast<long long>(n) * n; m < high; m += n)
      composite[static_cast<std::size_t>(m)] = true;
  }
  return primes;
}

void printLine(const std::string& name, std::size_t lines, std::size_t distinct, const std::string& rest) {
  std::printf("%-20s %6zu lines %6zu distinct  %s\n", name.c_str(), lines, distinct, rest.c_str());
}

class Checker {
 public:
  explicit Checker(const Lists& lists) : lists_(lists) {}

  void answerFile(const GameTypeInfo& info);
  void validityFile(const GameTypeInfo& info);
  void translationFile(std::string_view gameType, const std::string& name, int tiles);
  void operatorsAcrossAllTypes();
  void folderSize(const std::filesystem::path& folder);
  const Problems& problems() const { return problems_; }

 private:
  const std::vector<std::string_view>* load(const std::string& name);
  void checkAnswer(const GameTypeInfo& info, const Keys& keys, std::string_view entry,
                   const std::string& name);

  const Lists& lists_;
  Problems problems_;
  std::map<std::string, std::vector<std::string_view>> entries_;
  std::set<char> allTypeOperators_;
};

const std::vector<std::string_view>* Checker::load(const std::string& name) {
  try {
    auto [it, added] = entries_.try_emplace(name);
    if (added) it->second = entriesOf(lists_.file(name));
    return &it->second;
  } catch (const FatalError& error) {
    entries_.erase(name);
    problems_.add(name, error.what());
    return nullptr;
  }
}

void Checker::checkAnswer(const GameTypeInfo& info, const Keys& keys, std::string_view entry,
                          const std::string& name) {
  if (auto error = shapeError(entry, info.tiles, keys); !error.empty()) return problems_.add(name, error);
  const std::string word(entry);
  switch (info.kind) {
    case GameKind::englishWords:
    case GameKind::geniusWords:
    case GameKind::spanishWords:
      if (!lists_.containsWord(std::string(info.validityFile), word)) {
        return problems_.add(name, "'" + word + "' is not on " + std::string(info.validityFile));
      }
      if (info.kind == GameKind::spanishWords) {
        const auto english = lists_.translation(info.gameType, word);
        if (english.empty() || english == "Tessarine")
          problems_.add(name, "'" + word + "' has no translation");
      } else if (lists_.definition(std::string(info.validityFile), word).empty()) {
        problems_.add(name, "'" + word + "' has no definition on " + std::string(info.validityFile));
      }
      return;
    case GameKind::primeNumbers:
      if (!lists_.containsLine(std::string(info.validityFile), word)) {
        problems_.add(name, "'" + word + "' is not on " + std::string(info.validityFile));
      }
      [[fallthrough]];
    case GameKind::allNumbers:
      if (word[0] == '0') problems_.add(name, "'" + word + "' has a leading zero");
      return;
    case GameKind::equations: {
      std::set<char> seen;
      if (auto error = equationError(entry, info, keys, seen); !error.empty())
        return problems_.add(name, error);
      if (keys.plus && keys.minus && keys.times && keys.divide)
        allTypeOperators_.insert(seen.begin(), seen.end());
      return;
    }
  }
}

void Checker::answerFile(const GameTypeInfo& info) {
  const std::string name(info.answerFile);
  const auto* entries = load(name);
  if (entries == nullptr) return;
  if (static_cast<int>(entries->size()) < info.modulus) {
    problems_.add(name, std::to_string(entries->size()) + " lines, fewer than the modulus " +
                            std::to_string(info.modulus));
  }
  const Keys keys = keysOf(info);
  for (auto entry : *entries)
    checkAnswer(info, keys, entry, name);
  const Schedule schedule = scheduleOf(*entries, info.modulus);
  if (!schedule.error.empty()) problems_.add(name, schedule.error);
  std::string gap = schedule.smallestGap > 0
                        ? "smallest gap " + std::to_string(schedule.smallestGap) + " days"
                        : "no repeat";
  if (schedule.distinct < kSmallPool) {
    gap += " (pool under " + std::to_string(kSmallPool) + ": the month rule is not applied)";
  } else if (schedule.smallestGap > 0 && schedule.smallestGap < kMinimumGap) {
    problems_.add(name, "an answer comes back after " + std::to_string(schedule.smallestGap) +
                            " days, under " + std::to_string(kMinimumGap));
  }
  printLine(name, entries->size(), schedule.distinct, gap);
}

void Checker::validityFile(const GameTypeInfo& info) {
  const std::string name(info.validityFile);
  const auto* entries = load(name);
  if (entries == nullptr) return;
  const Keys keys = keysOf(info);
  const bool english = info.kind == GameKind::englishWords || info.kind == GameKind::geniusWords;
  std::set<std::string_view> words;
  std::size_t defined = 0;
  for (auto line : *entries) {
    const auto bytes =
        info.kind == GameKind::primeNumbers ? line.size() : std::min(line.find(' '), line.size());
    const auto word = line.substr(0, bytes);
    if (auto error = shapeError(word, info.tiles, keys); !error.empty()) {
      problems_.add(name, error);
      continue;
    }
    words.insert(word);
    if (bytes == line.size()) continue;
    if (!english || trimView(line.substr(bytes)).empty()) {
      problems_.add(name, "'" + std::string(line) + "' carries text after its entry");
    } else {
      ++defined;
    }
  }
  std::string rest = "-";
  if (english) {
    char share[64];
    std::snprintf(share, sizeof share, "definitions %.1f%%",
                  entries->empty() ? 0.0 : 100.0 * defined / entries->size());
    rest = share;
  }
  if (info.kind == GameKind::primeNumbers) {
    const auto primes = primesOfLength(info.tiles);
    const bool same = words.size() == primes.size() && std::all_of(words.begin(), words.end(), [&](auto w) {
                        return primes.contains(std::string(w));
                      });
    if (!same)
      problems_.add(name,
                    "does not hold exactly the " + std::to_string(primes.size()) + " primes of its length");
  }
  printLine(name, entries->size(), words.size(), rest);
}

void Checker::translationFile(std::string_view gameType, const std::string& name, int tiles) {
  const auto* entries = load(name);
  if (entries == nullptr) return;
  const Keys keys = keysOf(*findGameType(gameType));
  std::set<std::string_view> words;
  for (auto line : *entries) {
    const auto bytes = std::min(line.find(' '), line.size());
    const auto word = line.substr(0, bytes);
    if (auto error = shapeError(word, tiles, keys); !error.empty()) {
      problems_.add(name, error);
    } else if (trimView(line.substr(bytes)).empty()) {
      problems_.add(name, "'" + std::string(word) + "' has no English text");
    }
    words.insert(word);
  }
  printLine(name, entries->size(), words.size(), "-");
}

void Checker::operatorsAcrossAllTypes() {
  for (char op : {'+', '-', 'X', '/'}) {
    if (!allTypeOperators_.contains(op)) {
      problems_.add("all-operator equations", "'" + std::string(1, op) + "' occurs in none of them");
    }
  }
}

void Checker::folderSize(const std::filesystem::path& folder) {
  std::uintmax_t bytes = 0;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    if (entry.is_regular_file()) bytes += entry.file_size();
  }
  std::printf("%-20s %.1f MB\n", "all files", static_cast<double>(bytes) / (1024.0 * 1024.0));
  if (bytes > kMaximumBytes) problems_.add(folder.string(), "holds more than 25 MB");
}

int check(const Args& args) {
  if (args.positional().size() != 1 || args.positional()[0] != "check") {
    throw UsageError{"lists takes the word check"};
  }
  const auto source = listSourceFor(args);
  const Lists lists(*source);
  Checker checker(lists);
  std::set<std::string_view> validityDone;
  for (const auto& info : gameCatalogue()) {
    if (!info.answerFile.empty()) checker.answerFile(info);
  }
  for (const auto& info : gameCatalogue()) {
    if (!info.validityFile.empty() && validityDone.insert(info.validityFile).second)
      checker.validityFile(info);
  }
  checker.translationFile("W", "4LetterTranslation", 4);
  checker.translationFile("X", "5LetterTranslation", 5);
  checker.operatorsAcrossAllTypes();
  checker.folderSize(resourcesFolder(args));
  const auto& found = checker.problems().found;
  if (found.empty()) {
    std::cout << "lists check: every rule holds\n";
    return 0;
  }
  std::cerr << "lists check failed: " << found.front() << "\n";
  for (std::size_t i = 1; i < found.size(); ++i)
    std::cerr << "  also " << found[i] << "\n";
  return 1;
}

const Registrar command({"lists", "lists check [--resources DIR]", check});

}  // namespace
}  // namespace tessarine::cli
