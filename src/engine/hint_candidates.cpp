#include "engine/hint_candidates.h"

#include <memory>

#include "catalogue/lists.h"
#include "engine/knowledge.h"

namespace tessarine {
namespace {

std::size_t symbolBytes(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
    ++end;
  return end - at;
}

std::unique_ptr<CandidateList> buildList(const ListFile& file, int length, bool wholeLine) {
  auto list = std::make_unique<CandidateList>();
  list->length = length;
  for (const std::string& line : file.lines) {
    std::string_view text = wholeLine ? trimView(line) : std::string_view(line);
    std::size_t bytes = 0;
    int symbols = 0;
    while (symbols < length && bytes < text.size()) {
      bytes += symbolBytes(text, bytes);
      ++symbols;
    }
    // Too short to fill a row, or (for primes) too long: no such row can be entered.
    if (symbols < length || (wholeLine && bytes != text.size())) continue;
    EncodedWord word{};
    std::uint64_t mask = 0;
    std::size_t at = 0;
    for (int i = 0; i < length; ++i) {
      const std::size_t size = symbolBytes(text, at);
      word[static_cast<std::size_t>(i)] = list->symbols.add(text.substr(at, size));
      mask |= std::uint64_t{1} << (word[static_cast<std::size_t>(i)] % 64);
      at += size;
    }
    list->words.emplace_back(text.substr(0, bytes));
    list->codes.push_back(word);
    list->masks.push_back(mask);
  }
  return list;
}

}  // namespace

SymbolCode SymbolTable::code(std::string_view symbol) const {
  if (symbol.size() == 1) {
    const auto c = static_cast<unsigned char>(symbol[0]);
    return c < 128 ? ascii_[c] : kAbsent;
  }
  for (const auto& [text, value] : others_) {
    if (text == symbol) return value;
  }
  return kAbsent;
}

SymbolCode SymbolTable::add(std::string_view symbol) {
  if (const SymbolCode existing = code(symbol); existing != kAbsent) return existing;
  if (next_ > 255) return kAbsent;  // more symbols than any keypad has; treat as unusable
  const auto value = static_cast<SymbolCode>(next_++);
  const auto c = static_cast<unsigned char>(symbol[0]);
  if (symbol.size() == 1 && c < 128) {
    ascii_[c] = value;
  } else {
    others_.emplace_back(symbol, value);
  }
  return value;
}

bool SymbolTable::encode(std::string_view text, int length, EncodedWord& out) const {
  std::size_t at = 0;
  for (int i = 0; i < length; ++i) {
    if (at >= text.size()) return false;
    const std::size_t size = symbolBytes(text, at);
    out[static_cast<std::size_t>(i)] = code(text.substr(at, size));
    at += size;
  }
  return at == text.size();
}

const CandidateList& candidateList(const Lists& lists, const std::string& listName, int length,
                                   bool wholeLine) {
  const std::string key =
      "candidates:" + listName + ":" + std::to_string(length) + (wholeLine ? ":line" : ":prefix");
  return lists.derived<CandidateList>(key,
                                      [&] { return buildList(lists.file(listName), length, wholeLine); });
}

CandidateTest::CandidateTest(const Knowledge& knowledge, const SymbolTable& symbols)
    : masksExact_(symbols.masksExact()) {
  if (knowledge.hintLettersUnique.empty()) {
    form_ = HintTestForm::grayOnly;
  } else if (knowledge.greenLetterPosition.size() == 1) {
    form_ = HintTestForm::singleGreen;
  } else if (knowledge.greenLetterPosition.empty()) {
    form_ = HintTestForm::noGreen;
  } else {
    form_ = HintTestForm::full;
  }
  for (const std::string& symbol : knowledge.grayLetters) {
    const SymbolCode code = symbols.code(symbol);
    if (code == SymbolTable::kAbsent) continue;  // no word holds it anyway
    gray_.set(code);
    grayMask_ |= std::uint64_t{1} << (code % 64);
  }
  if (form_ == HintTestForm::grayOnly) return;
  for (int column : knowledge.greenLetterPosition) {
    const auto c = static_cast<std::size_t>(column);
    green_.emplace_back(column, c < knowledge.greenLetters.size() ? symbols.code(knowledge.greenLetters[c])
                                                                  : SymbolTable::kAbsent);
  }
  for (std::size_t i = 0; i < knowledge.yellowLetters.size() && i < knowledge.yellowCloseGroups.size(); ++i) {
    for (int column : knowledge.yellowCloseGroups[i])
      closed_.emplace_back(column, symbols.code(knowledge.yellowLetters[i]));
  }
  for (std::size_t i = 0; i < knowledge.hintLettersUnique.size(); ++i) {
    const auto bound = [i](const std::vector<int>& values, int fallback) {
      return i < values.size() ? values[i] : fallback;
    };
    counts_.push_back({symbols.code(knowledge.hintLettersUnique[i]),
                       i < knowledge.hintOpenGroups.size() ? knowledge.hintOpenGroups[i] : std::vector<int>{},
                       bound(knowledge.hintLettersExact, 0), bound(knowledge.hintLettersLower, 0),
                       bound(knowledge.hintLettersUpper, kMaxWordSymbols)});
    const Count& added = counts_.back();
    if (added.code != SymbolTable::kAbsent && (added.exact >= 1 || added.lower >= 1)) {
      requiredMask_ |= std::uint64_t{1} << (added.code % 64);
    }
  }
}

bool CandidateTest::passes(const EncodedWord& word, std::uint64_t mask) const {
  // Gray first, most words fail here. With exact masks one AND decides; otherwise the mask only
  // says "maybe" and the columns decide.
  if ((mask & grayMask_) != 0) {
    if (masksExact_) return false;
    for (SymbolCode code : word) {
      if (code != SymbolTable::kAbsent && gray_.test(code)) return false;
    }
  }
  if (masksExact_ && (mask & requiredMask_) != requiredMask_) return false;  // a known symbol is missing
  const auto at = [&word](int column) {
    return column >= 0 && column < kMaxWordSymbols ? word[static_cast<std::size_t>(column)]
                                                   : SymbolTable::kAbsent;
  };
  for (const auto& [column, code] : green_) {
    if (at(column) != code || code == SymbolTable::kAbsent) return false;
  }
  for (const auto& [column, code] : closed_) {
    if (code != SymbolTable::kAbsent && at(column) == code) return false;
  }
  for (const Count& count : counts_) {
    int n = 0;
    if (count.code != SymbolTable::kAbsent) {
      for (int column : count.open)
        n += at(column) == count.code ? 1 : 0;
    }
    if ((count.exact >= 1 && n != count.exact) || n < count.lower || n > count.upper) return false;
  }
  return true;
}

}  // namespace tessarine
