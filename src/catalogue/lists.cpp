#include "catalogue/lists.h"

#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"

namespace tessarine {
namespace {

constexpr std::string_view kWhitespace = " \t\n\r\v\f";

bool isContinuationByte(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Byte length of the first `symbols` UTF-8 characters of `text`, or npos when it is shorter.
std::size_t prefixBytes(std::string_view text, std::size_t symbols) {
  std::size_t i = 0;
  for (std::size_t n = 0; n < symbols; ++n) {
    if (i >= text.size()) return std::string_view::npos;
    ++i;
    while (i < text.size() && isContinuationByte(text[i]))
      ++i;
  }
  return i;
}

// A file that does not decode as UTF-8 is as unreadable as a missing one.
bool isValidUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    std::size_t extra = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
      extra = 1;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
      extra = 2;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
      extra = 3;
    } else if (lead >= 0x80) {
      return false;
    }
    if (text.size() - i <= extra) return false;
    for (std::size_t k = 1; k <= extra; ++k) {
      if (!isContinuationByte(text[i + k])) return false;
    }
    i += extra + 1;
  }
  return true;
}

FatalError couldNotLoad(const std::string& name) {
  // The three-letter answers have always reported their validity file; players' bug reports quote it.
  const std::string reported = name == "3LetterAnswers" ? "3LetterWords" : name;
  return FatalError("Could not load " + reported + ".txt from bundle.");
}

}  // namespace

std::string_view trimView(std::string_view text) {
  const auto first = text.find_first_not_of(kWhitespace);
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(kWhitespace);
  return text.substr(first, last - first + 1);
}

std::vector<std::string> splitSymbols(std::string_view text) {
  std::vector<std::string> symbols;
  std::size_t i = 0;
  while (i < text.size()) {
    std::size_t j = i + 1;
    while (j < text.size() && isContinuationByte(text[j]))
      ++j;
    symbols.emplace_back(text.substr(i, j - i));
    i = j;
  }
  return symbols;
}

std::size_t symbolCount(std::string_view text) {
  std::size_t count = 0;
  for (char c : text)
    count += isContinuationByte(c) ? 0 : 1;
  return count;
}

const ListFile& Lists::file(const std::string& name) const {
  if (auto found = files_.find(name); found != files_.end()) return *found->second;
  auto text = source_.read(name);
  if (!text || !isValidUtf8(*text)) throw couldNotLoad(name);
  auto loaded = std::make_unique<ListFile>();
  std::size_t start = 0;
  while (true) {
    const auto end = text->find('\n', start);
    if (end == std::string::npos) {
      loaded->lines.emplace_back(text->substr(start));
      break;
    }
    loaded->lines.emplace_back(text->substr(start, end - start));
    start = end + 1;
  }
  return *files_.emplace(name, std::move(loaded)).first->second;
}

std::string Lists::answer(std::string_view gameType, int dayIndex) const {
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr || info->answerFile.empty()) return "Tessarine";
  const std::string name(info->answerFile);
  const ListFile& answers = file(name);
  // A file shorter than its schedule would leave days without an answer, which could never be won.
  const bool endsInNewline = !answers.lines.empty() && answers.lines.back().empty();
  if (answers.lines.size() - (endsInNewline ? 1 : 0) < static_cast<std::size_t>(info->modulus))
    throw couldNotLoad(name);
  int i = dayIndex;
  if (i < info->modulus) {
    i = i < 0 ? 0 : i;
  } else {
    i %= info->modulus;
  }
  return std::string(trimView(answers.lines[static_cast<std::size_t>(i)]));
}

const Lists::Index& Lists::prefixIndex(const std::string& listName, std::size_t length) const {
  auto key = std::make_pair(listName, length);
  if (auto found = indexes_.find(key); found != indexes_.end()) return *found->second;
  const ListFile& list = file(listName);
  auto index = std::make_unique<Index>();
  for (std::size_t n = 0; n < list.lines.size(); ++n) {
    const std::string_view line = list.lines[n];
    const auto bytes = prefixBytes(line, length);
    if (bytes == std::string_view::npos) continue;
    const std::string_view prefix = line.substr(0, bytes);
    index->keys.insert(prefix);
    index->lastLine[prefix] = n;
  }
  return *indexes_.emplace(std::move(key), std::move(index)).first->second;
}

const Lists::Index& Lists::lineIndex(const std::string& listName) const {
  // Length 0 stands for "the whole trimmed line".
  auto key = std::make_pair(listName, std::size_t{0});
  if (auto found = indexes_.find(key); found != indexes_.end()) return *found->second;
  const ListFile& list = file(listName);
  auto index = std::make_unique<Index>();
  for (std::size_t n = 0; n < list.lines.size(); ++n) {
    const std::string_view line = trimView(list.lines[n]);
    index->keys.insert(line);
    index->lastLine[line] = n;
  }
  return *indexes_.emplace(std::move(key), std::move(index)).first->second;
}

bool Lists::containsWord(const std::string& listName, std::string_view guess) const {
  if (guess.empty()) return true;
  return prefixIndex(listName, symbolCount(guess)).keys.contains(guess);
}

bool Lists::containsLine(const std::string& listName, std::string_view guess) const {
  return lineIndex(listName).keys.contains(guess);
}

std::string Lists::translation(std::string_view gameType, std::string_view word) const {
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr || info->translationFile.empty()) return "Tessarine";
  const std::string name(info->translationFile);
  const auto length = static_cast<std::size_t>(info->tiles);
  const Index& index = prefixIndex(name, length);
  const auto found = index.lastLine.find(word);
  if (found == index.lastLine.end()) return "Tessarine";
  const std::string_view line = file(name).lines[found->second];
  return std::string(trimView(line.substr(prefixBytes(line, length))));
}

std::string Lists::definition(const std::string& listName, std::string_view word) const {
  const Index& index = prefixIndex(listName, symbolCount(word));
  const auto found = index.lastLine.find(word);
  if (found == index.lastLine.end()) return {};
  const std::string_view line = file(listName).lines[found->second];
  return std::string(trimView(line.substr(word.size())));
}

}  // namespace tessarine
