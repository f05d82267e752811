#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <span>

#include "engine/row_marks.h"
#include "storage/data_manager.h"

namespace tessarine {

// A day record is 62 characters (not bytes): the day index in four digits (five from day 10000,
// which moves every later field by one), the game type, the score digit, 50 cells with one blank
// for an empty cell, and one mark digit for each of rows 0 to 5.
constexpr int kRecordCells = 50;
constexpr int kDayRecordLength = 6 + kRecordCells + kMarkedRows;
// The reader's tile text reaches only to cell 46; cell 47 of the 8-tile equations never comes back.
constexpr int kTileTextLength = 53;

// A day record as the refresh reads it.
struct DayRecord {
  Entry entry;           // the handle, to delete or replace the record
  int dayIndex = 0;      // the leading digits
  std::string gameType;  // one character
  int score = 0;         // 0 unfinished, 1..gameRows won on that row, gameRows + 1 lost
  int firstCell = 6;     // character position of cell 0 (7 for a five-digit day)
  // Parts of `entry.text` kept as byte ranges: a launch reads every record, and only the shown
  // day's record is ever replayed.
  std::uint32_t keyLength = 0, tileBegin = 0, tileLength = 0, marksBegin = 0;

  // Day and game type: the first five characters (six from day 10000).
  std::string_view key() const { return std::string_view(entry.text).substr(0, keyLength); }
  // The first 53 characters (54 from day 10000), trimmed at both ends.
  std::string_view tileText() const { return std::string_view(entry.text).substr(tileBegin, tileLength); }
  // The last six characters, one per row; a blank is no mark.
  std::string_view marks() const { return std::string_view(entry.text).substr(marksBegin); }
};

// The record of a day: `cells` are the board's first cells (an empty cell is "   "), of which the
// first 50 are kept; `marks` give the six mark digits.
std::string buildDayRecord(int dayIndex, std::string_view gameType, int score,
                           std::span<const std::string> cells, const RowMarkSet& marks, bool smartModeFlag);

// nullopt with a one-line `problem` when the record cannot be read without guessing.
std::optional<DayRecord> parseDayRecord(Entry entry, std::string& problem);

// All readable day records in creation order. Each unreadable one is named in one line on `log`
// and left in the store untouched.
std::vector<DayRecord> readDayRecords(const CoreDataManager& coreDM, std::ostream& log);

// The character at record position `position` (a blank past the end); cells start at `firstCell`.
std::string recordCharacter(const DayRecord& record, int position);

// The replay's cells: the characters of `tileText` from cell 0 on, one string each. Empty when the
// game was not begun.
std::vector<std::string> restoredCells(const DayRecord& record);

// Brings records of an older, shorter format to full length at launch, all in one transaction
// that keeps their order. Only the first record is looked at: when it is long enough, all are
// taken to be current. Each padded record is named in one line on `log`; a record that would
// still not read once padded (empty, not UTF-8, no day) is left as it is for the reader to report.
void padDayRecords(CoreDataManager& coreDM, std::ostream& log);

// A record as one printable line: control and non-ASCII bytes are escaped.
std::string printableRecord(std::string_view text);

// The mark digit of one row, the first that applies of 7, 6/5, 3/2, 4, 1, 0.
char rowMarkDigit(const RowMarkSet& marks, int row, bool smartModeFlag);

// Sets the row marks that the six mark characters stand for (nothing is cleared). Returns true
// when a "3" or "6" says the last row was refused by Smart Mode and is not yet played.
bool restoreRowMarks(RowMarkSet& marks, std::string_view text);

}  // namespace tessarine
