#include "screens/refusal_message.h"

#include "catalogue/catalogue.h"
#include "screens/third_view_parts.h"

namespace tessarine {
namespace {

bool endsWord(std::string_view text, std::size_t at) {
  return at >= text.size() || text[at] == ' ' || text[at] == '.' || text[at] == ',' || text[at] == '\'';
}

// The example symbol or entry: the sentences all start "The letter C", "El número 5", ...
std::string_view exampleOf(std::string_view sentence) {
  std::size_t start = 0;
  for (int word = 0; word < 2; ++word) {
    start = sentence.find(' ', start);
    if (start == std::string_view::npos) return {};
    ++start;
  }
  std::size_t end = start;
  while (!endsWord(sentence, end))
    ++end;
  return sentence.substr(start, end - start);
}

}  // namespace

std::string fillExample(std::string_view sentence, std::string_view value) {
  const std::string_view example = exampleOf(sentence);
  if (example.empty()) return std::string(sentence);
  std::string filled;
  std::size_t at = 0;
  while (at < sentence.size()) {
    const bool startsWord = at == 0 || sentence[at - 1] == ' ';
    if (startsWord && sentence.substr(at, example.size()) == example &&
        endsWord(sentence, at + example.size())) {
      filled += value;
      at += example.size();
    } else {
      filled += sentence[at++];
    }
  }
  return filled;
}

std::string refusalMessage(const ContentView& view) {
  const Refusal& refusal = view.refusal;
  if (refusal.kind == RefusalKind::none) return {};
  const GameTypeInfo* info = findGameType(view.gameType);
  const FamilyTexts& texts = refusal.kind == RefusalKind::smartMode
                                 ? help::smartModeErrorText(static_cast<std::size_t>(refusal.smartMode.kind))
                                 : help::refusedEntryText(refusal.kind == RefusalKind::repeated);
  const auto sentence = help::familyText(texts, info, "", view.EnglishTranslation);
  if (!sentence) return {};
  return fillExample(*sentence,
                     refusal.kind == RefusalKind::smartMode ? refusal.smartMode.symbol : refusal.entry);
}

}  // namespace tessarine
