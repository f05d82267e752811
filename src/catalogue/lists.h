#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "catalogue/list_source.h"

namespace tessarine {

// One list file, split at line feeds and kept for the life of the process.
struct ListFile {
  std::vector<std::string> lines;  // raw lines; a trailing newline leaves an empty last entry
};

// Reads each list once and answers every question the game asks of the lists: the day's answer,
// whether a guess is on a list, a translation. Lookups are hashed, never a walk of the file.
class Lists {
 public:
  explicit Lists(const ListSource& source) : source_(source) {}

  // The file, loaded on first use. A missing file is the fatal stop "Could not load <name>.txt
  // from bundle." (the three-letter answers name their validity file instead).
  const ListFile& file(const std::string& name) const;

  // The answer of a type on a day index; "Tessarine" for types without a file.
  std::string answer(std::string_view gameType, int dayIndex) const;

  // Whether `guess` is the first `guess.size()` characters of some line of a word list, or a
  // whole trimmed line of a prime list.
  bool containsWord(const std::string& listName, std::string_view guess) const;
  bool containsLine(const std::string& listName, std::string_view guess) const;

  // The English text for a Spanish answer of "W" or "X"; the last matching line wins.
  std::string translation(std::string_view gameType, std::string_view word) const;

  // The definition that follows a word on its English validity line, empty when there is none.
  std::string definition(const std::string& listName, std::string_view word) const;

  // A form derived from a list (the hint engine's encoded words), built on first use and kept as
  // long as these lists, so that a second set of lists never sees the first one's forms.
  template <typename T, typename Build>
  const T& derived(const std::string& key, Build build) const {
    auto& slot = derived_[key];
    if (!slot) slot = std::shared_ptr<const void>(build());
    return *static_cast<const T*>(slot.get());
  }

 private:
  struct Index {
    std::unordered_set<std::string_view> keys;
    std::unordered_map<std::string_view, std::size_t> lastLine;  // key -> last line holding it
  };
  const Index& prefixIndex(const std::string& listName, std::size_t length) const;
  const Index& lineIndex(const std::string& listName) const;

  const ListSource& source_;
  mutable std::map<std::string, std::unique_ptr<ListFile>, std::less<>> files_;
  mutable std::map<std::pair<std::string, std::size_t>, std::unique_ptr<Index>> indexes_;
  mutable std::map<std::string, std::shared_ptr<const void>, std::less<>> derived_;
};

std::string_view trimView(std::string_view text);

// Characters, not bytes: a Spanish "Ñ" is one symbol of two bytes.
std::vector<std::string> splitSymbols(std::string_view text);
std::size_t symbolCount(std::string_view text);

}  // namespace tessarine
