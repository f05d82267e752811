// The candidate test of the hint engine, compiled from the knowledge sets, and the game's list
// kept as fixed arrays of small symbol codes so the whole list can be filtered on the first row.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessarine {

struct Knowledge;
class Lists;

constexpr int kMaxWordSymbols = 8;
using SymbolCode = std::uint8_t;
using EncodedWord = std::array<SymbolCode, kMaxWordSymbols>;

// Symbols of one list numbered in order of first appearance. Code 0 stands for a symbol the
// list never uses: no word holds it.
class SymbolTable {
 public:
  static constexpr SymbolCode kAbsent = 0;
  SymbolCode code(std::string_view symbol) const;
  SymbolCode add(std::string_view symbol);
  // Codes of the first `length` symbols of `text`; false when it is shorter or longer.
  bool encode(std::string_view text, int length, EncodedWord& out) const;
  // With fewer than 64 codes a word's mask names its symbols exactly.
  bool masksExact() const { return next_ <= 64; }

 private:
  std::array<SymbolCode, 128> ascii_{};
  std::vector<std::pair<std::string, SymbolCode>> others_;
  int next_ = 1;
};

// A validity list reduced to its words, as the hint engine reads it.
struct CandidateList {
  int length = 0;
  SymbolTable symbols;
  std::vector<std::string> words;
  std::vector<EncodedWord> codes;
  std::vector<std::uint64_t> masks;  // bit (code % 64) set for each symbol of the word
};

// The list for `listName` reduced to words of `length` symbols: a line's first symbols for a word
// list, the whole trimmed line for a prime list. Built once per list and kept with the lists.
const CandidateList& candidateList(const Lists& lists, const std::string& listName, int length,
                                   bool wholeLine);

// Which steps of the test run; chosen once per filtering from the knowledge sets.
enum class HintTestForm { grayOnly, singleGreen, noGreen, full };

class CandidateTest {
 public:
  CandidateTest(const Knowledge& knowledge, const SymbolTable& symbols);
  HintTestForm form() const { return form_; }
  bool passes(const EncodedWord& word, std::uint64_t mask) const;

 private:
  struct Count {
    SymbolCode code;
    std::vector<int> open;
    int exact, lower, upper;
  };
  HintTestForm form_;
  bool masksExact_;
  std::uint64_t grayMask_ = 0;
  std::uint64_t requiredMask_ = 0;  // symbols every candidate must hold
  std::bitset<256> gray_;
  std::vector<std::pair<int, SymbolCode>> green_, closed_;
  std::vector<Count> counts_;
};

}  // namespace tessarine
