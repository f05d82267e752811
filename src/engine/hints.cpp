#include "engine/hints.h"

#include <utility>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/hint_candidates.h"
#include "engine/random_source.h"
#include "engine/scoring.h"
#include "session/content_view.h"

namespace tessarine {
namespace {

// The game's validity list as candidates, or nullptr for a type without one (no hints).
const CandidateList* gameList(const ContentView& view, const Lists& lists) {
  const GameTypeInfo* info = findGameType(view.gameType);
  if (info == nullptr || info->validityFile.empty()) return nullptr;
  if (view.gameLetters < 1 || view.gameLetters > kMaxWordSymbols) return nullptr;
  const std::string listName(info->validityFile);
  return &candidateList(lists.file(listName), listName, view.gameLetters,
                        info->kind == GameKind::primeNumbers);
}

void filterList(ContentView& view, const Lists& lists) {
  const CandidateList* found = gameList(view, lists);
  if (found == nullptr) return;
  const CandidateList& list = *found;
  const CandidateTest test(view, list.symbols);
  for (std::size_t i = 0; i < list.words.size(); ++i) {
    if (test.passes(list.codes[i], list.masks[i])) view.allHints.push_back(list.words[i]);
  }
}

// Later rows test only the survivors of the last filtering, whatever list they came from.
void narrow(ContentView& view, const Lists& lists, std::vector<std::string> source) {
  const CandidateList* found = gameList(view, lists);
  if (found == nullptr) return;
  const CandidateList& list = *found;
  const CandidateTest test(view, list.symbols);
  for (std::string& word : source) {
    EncodedWord codes{};
    if (!list.symbols.encode(word, view.gameLetters, codes)) continue;
    std::uint64_t mask = 0;
    for (SymbolCode code : codes)
      mask |= std::uint64_t{1} << (code % 64);
    if (test.passes(codes, mask)) view.allHints.push_back(std::move(word));
  }
}

}  // namespace

void computeHints(ContentView& view, const Lists& lists) {
  const int day = view.latestDateIndex + view.activeDate;
  view.numberOfHints = 0;
  if (!view.allHints.empty() && view.hintsGameType == view.gameType && view.hintsGameDate == day) {
    view.allHints.clear();
    view.hintsGuess = view.activeRow;
    narrow(view, lists, view.firstHints);
  } else {
    view.allHints.clear();
    view.hintsGameType = view.gameType;
    view.hintsGameDate = day;
    filterList(view, lists);
  }
  view.firstHints = view.allHints;
  view.numberOfHints = view.numberOfAvailableHints = static_cast<int>(view.allHints.size());
}

std::string drawHint(ContentView& view, const Lists& lists, RandomSource& random) {
  auto& hints = view.allHints;
  if (hints.empty()) return mysteryAnswer(view, lists);
  --view.numberOfAvailableHints;
  if (hints.size() == 1) return hints.front();
  // Fisher-Yates from the front; the last position has nothing left to swap with.
  for (std::size_t i = 0; i + 1 < hints.size(); ++i) {
    const auto j = i + static_cast<std::size_t>(boundedRandom(random, hints.size() - i));
    std::swap(hints[i], hints[j]);
  }
  std::string hint = std::move(hints.front());
  hints.erase(hints.begin());
  return hint;
}

}  // namespace tessarine
