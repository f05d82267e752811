#include "engine/hints.h"

#include <utility>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/hint_candidates.h"
#include "engine/random_source.h"

namespace tessarine {
namespace {

// The game's validity list as candidates, or nullptr for a type without one (no hints).
const CandidateList* gameList(std::string_view gameType, int letters, const Lists& lists) {
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr || info->validityFile.empty()) return nullptr;
  if (letters < 1 || letters > kMaxWordSymbols) return nullptr;
  return &candidateList(lists, std::string(info->validityFile), letters,
                        info->kind == GameKind::primeNumbers);
}

void filterList(HintState& hints, const CandidateList& list, const Knowledge& knowledge) {
  const CandidateTest test(knowledge, list.symbols);
  for (std::size_t i = 0; i < list.words.size(); ++i) {
    if (test.passes(list.codes[i], list.masks[i])) hints.allHints.push_back(list.words[i]);
  }
}

// Later rows test only the survivors of the last filtering, whatever list they came from.
void narrow(HintState& hints, const CandidateList& list, const Knowledge& knowledge,
            std::vector<std::string> source, int letters) {
  const CandidateTest test(knowledge, list.symbols);
  for (std::string& word : source) {
    EncodedWord codes{};
    if (!list.symbols.encode(word, letters, codes)) continue;
    std::uint64_t mask = 0;
    for (SymbolCode code : codes)
      mask |= std::uint64_t{1} << (code % 64);
    if (test.passes(codes, mask)) hints.allHints.push_back(std::move(word));
  }
}

}  // namespace

void computeHints(HintState& hints, const Knowledge& knowledge, const Board& board, const Lists& lists,
                  std::string_view gameType, int day) {
  hints.numberOfHints = 0;
  const CandidateList* list = gameList(gameType, board.gameLetters, lists);
  if (!hints.allHints.empty() && hints.hintsGameType == gameType && hints.hintsGameDate == day) {
    hints.allHints.clear();
    hints.hintsGuess = board.activeRow;
    if (list != nullptr) narrow(hints, *list, knowledge, hints.firstHints, board.gameLetters);
  } else {
    hints.allHints.clear();
    hints.hintsGameType = std::string(gameType);
    hints.hintsGameDate = day;
    if (list != nullptr) filterList(hints, *list, knowledge);
  }
  hints.firstHints = hints.allHints;
  hints.numberOfHints = hints.numberOfAvailableHints = static_cast<int>(hints.allHints.size());
}

std::string drawHint(HintState& hints, const Answer& answer, RandomSource& random) {
  auto& list = hints.allHints;
  if (list.empty()) return answer.text;
  --hints.numberOfAvailableHints;
  if (list.size() == 1) return list.front();
  // Fisher-Yates from the front; the last position has nothing left to swap with.
  for (std::size_t i = 0; i + 1 < list.size(); ++i) {
    const auto j = i + static_cast<std::size_t>(boundedRandom(random, list.size() - i));
    std::swap(list[i], list[j]);
  }
  std::string hint = std::move(list.front());
  list.erase(list.begin());
  return hint;
}

}  // namespace tessarine
