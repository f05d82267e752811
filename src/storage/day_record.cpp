#include "storage/day_record.h"

#include <algorithm>
#include <array>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/board.h"
#include "storage/record_text.h"

namespace tessarine {
namespace {

bool isDigit(std::string_view symbol) {
  return symbol.size() == 1 && symbol[0] >= '0' && symbol[0] <= '9';
}

// The characters of a UTF-8 text by position, as views into it: runs of characters are substrings.
// Positions are kept for the first characters only, which is all a record has; a launch parses every
// record, so this allocates nothing.
class Characters {
 public:
  static constexpr std::size_t kKept = 80;

  explicit Characters(std::string_view text) : text_(text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if ((static_cast<unsigned char>(text[i]) & 0xC0) == 0x80) continue;
      if (count_ < kKept) starts_[count_] = i;
      ++count_;
    }
    if (count_ < kKept) starts_[count_] = text.size();
  }
  std::size_t size() const { return count_; }
  std::string_view at(std::size_t position) const { return run(position, 1); }
  std::string_view run(std::size_t from, std::size_t count) const {
    from = std::min(from, kept());
    const std::size_t to = std::min(kept(), from + count);
    return text_.substr(starts_[from], starts_[to] - starts_[from]);
  }
  std::size_t byteOffset(std::size_t position) const { return starts_[std::min(position, kept())]; }

 private:
  // Runs end at the last kept position; a longer text is refused before any run is read.
  std::size_t kept() const { return std::min(count_, kKept - 1); }

  std::string_view text_;
  std::array<std::size_t, kKept> starts_{};
  std::size_t count_ = 0;
};

}  // namespace

std::string printableRecord(std::string_view text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string line;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F) {
      line += c;
    } else {
      line += "\\x";
      line += kHex[byte >> 4];
      line += kHex[byte & 0x0F];
    }
  }
  return line;
}

namespace {

std::string problemAt(std::size_t position, const std::string& what) {
  return "character " + std::to_string(position) + " " + what;
}

}  // namespace

char rowMarkDigit(const RowMarkSet& marks, int row, bool smartModeFlag) {
  const auto n = static_cast<std::size_t>(row);
  if (marks.singleHint[n]) return '7';
  if (marks.usedHints[n]) return smartModeFlag ? '6' : '5';
  if (marks.smartModeError[n]) return smartModeFlag ? '3' : '2';
  if (marks.validGuessError[n]) return '4';
  if (marks.smartModeCorrect[n]) return '1';
  return '0';
}

bool restoreRowMarks(RowMarkSet& view, std::string_view marks) {
  bool smartRecord = false;
  for (std::size_t row = 0; row < std::min<std::size_t>(marks.size(), kMarkedRows); ++row) {
    switch (marks[row]) {
      case '7':
        view.singleHint[row] = true;
        break;
      case '6':
        smartRecord = true;
        [[fallthrough]];
      case '5':
        view.usedHints[row] = true;
        break;
      case '3':
        smartRecord = true;
        [[fallthrough]];
      case '2':
        view.smartModeError[row] = true;
        break;
      case '4':
        view.validGuessError[row] = true;
        break;
      case '1':
        view.smartModeCorrect[row] = true;
        break;
      default:
        break;  // "0", or a blank left by padding: no mark
    }
  }
  return smartRecord;
}

std::string buildDayRecord(int dayIndex, std::string_view gameType, int score,
                           std::span<const std::string> cells, const RowMarkSet& marks, bool smartModeFlag) {
  std::string record = paddedDayIndex(dayIndex) + std::string(gameType) + std::to_string(score);
  for (std::size_t c = 0; c < kRecordCells; ++c) {
    const bool empty = c >= cells.size() || cells[c] == kEmptyCell;
    record += empty ? std::string(" ") : cells[c];
  }
  for (int row = 0; row < kMarkedRows; ++row)
    record += rowMarkDigit(marks, row, smartModeFlag);
  return record;
}

std::optional<DayRecord> parseDayRecord(Entry entry, std::string& problem) {
  if (!isValidUtf8(entry.text)) {
    problem = "not valid UTF-8";
    return std::nullopt;
  }
  const Characters symbols(entry.text);
  if (symbols.size() < static_cast<std::size_t>(kDayRecordLength)) {
    problem = "too short (" + std::to_string(symbols.size()) + " of 62 characters)";
    return std::nullopt;
  }
  if (symbols.size() > static_cast<std::size_t>(kDayRecordLength) + 1) {
    problem = "too long (" + std::to_string(symbols.size()) + " characters)";
    return std::nullopt;
  }
  // A five-digit day index makes the record one character longer.
  const std::size_t dayDigits = symbols.size() - kDayRecordLength + 4;
  for (std::size_t i = 0; i < dayDigits; ++i) {
    if (!isDigit(symbols.at(i))) {
      problem = problemAt(i, "of the day index is not a digit");
      return std::nullopt;
    }
  }
  const GameTypeInfo* type = findGameType(symbols.at(dayDigits));
  if (type == nullptr) {
    problem = "unknown game type \"" + printableRecord(symbols.at(dayDigits)) + "\"";
    return std::nullopt;
  }
  const std::string_view scoreSymbol = symbols.at(dayDigits + 1);
  if (!isDigit(scoreSymbol)) {
    problem = problemAt(dayDigits + 1, "(the score) is not a digit");
    return std::nullopt;
  }
  const int score = scoreSymbol[0] - '0';
  if (score > type->rows + 1) {
    problem = "score " + std::string(scoreSymbol) + " is beyond " + std::to_string(type->rows + 1) +
              " for game type " + std::string(symbols.at(dayDigits));
    return std::nullopt;
  }
  const std::size_t marksFrom = symbols.size() - kMarkedRows;
  for (std::size_t i = marksFrom; i < symbols.size(); ++i) {
    if (symbols.at(i) != " " && !isDigit(symbols.at(i))) {
      problem = problemAt(i, "(a row mark) is neither a digit nor a blank");
      return std::nullopt;
    }
  }
  const std::string_view tileText = trimView(symbols.run(0, kTileTextLength + dayDigits - 4));
  const std::size_t cells = symbolCount(tileText) - std::min(symbolCount(tileText), dayDigits + 2);
  const auto boardCells = static_cast<std::size_t>(type->tiles * type->rows);
  if (cells > boardCells) {
    // A stray byte late in the cells would be replayed as rows the board does not have.
    problem = std::to_string(cells) + " cells, more than the " + std::to_string(boardCells) +
              " of game type " + std::string(symbols.at(dayDigits));
    return std::nullopt;
  }
  DayRecord record;
  record.keyLength = static_cast<std::uint32_t>(symbols.byteOffset(dayDigits + 1));
  record.dayIndex = parseIntOr(symbols.run(0, dayDigits), 0);
  record.gameType = symbols.at(dayDigits);
  record.score = score;
  record.tileBegin = static_cast<std::uint32_t>(tileText.data() - entry.text.data());
  record.tileLength = static_cast<std::uint32_t>(tileText.size());
  record.marksBegin = static_cast<std::uint32_t>(symbols.byteOffset(marksFrom));
  record.firstCell = static_cast<int>(dayDigits) + 2;
  record.entry = std::move(entry);
  return record;
}

std::vector<DayRecord> readDayRecords(const CoreDataManager& coreDM, std::ostream& log) {
  std::vector<DayRecord> records;
  const std::vector<Entry> entries = coreDM.getAllEntries();
  records.reserve(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    std::string problem;
    if (auto record = parseDayRecord(entries[i], problem)) {
      records.push_back(std::move(*record));
    } else {
      log << "Skipped day record " << i << " \"" << printableRecord(entries[i].text) << "\": " << problem
          << '\n';
    }
  }
  return records;
}

std::string recordCharacter(const DayRecord& record, int position) {
  const Characters symbols(record.entry.text);
  return position >= 0 && static_cast<std::size_t>(position) < symbols.size()
             ? std::string(symbols.at(position))
             : " ";
}

std::vector<std::string> restoredCells(const DayRecord& record) {
  std::vector<std::string> symbols = splitSymbols(record.tileText());
  symbols.erase(symbols.begin(), symbols.begin() + std::min<std::size_t>(symbols.size(), record.firstCell));
  return symbols;
}

void padDayRecords(CoreDataManager& coreDM, std::ostream& log) {
  // Only the first record decides, so a current store is not read whole twice at launch.
  const std::optional<Entry> first = coreDM.firstEntry();
  if (!first || symbolCount(first->text) >= static_cast<std::size_t>(kDayRecordLength)) return;
  const std::vector<Entry> entries = coreDM.fetchEntries().value_or(std::vector<Entry>{});
  std::vector<Entry> padded;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::size_t length = symbolCount(entries[i].text);
    if (length >= static_cast<std::size_t>(kDayRecordLength)) continue;
    Entry lengthened{entries[i].id, entries[i].text + std::string(kDayRecordLength - length, ' ')};
    std::string problem;
    if (!parseDayRecord(lengthened, problem)) continue;
    log << "Padded day record " << i << " \"" << printableRecord(entries[i].text) << "\" to "
        << kDayRecordLength << " characters\n";
    padded.push_back(std::move(lengthened));
  }
  if (!padded.empty()) coreDM.updateEntries(padded);
}

}  // namespace tessarine
