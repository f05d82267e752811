#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/clock.h"
#include "session/content_view.h"
#include "storage/data_manager.h"

namespace tessarine {

// A day record is 62 characters (not bytes): the day index in four digits (five from day 10000,
// which moves every later field by one), the game type, the score digit, 50 cells with one blank
// for an empty cell, and one mark digit for each of rows 0 to 5.
constexpr int kDayRecordLength = kMaximumCells + kMarkedRows;
constexpr int kRecordCells = kMaximumCells - kMarkedRows;
// The reader's tile text reaches only to cell 46; cell 47 of the 8-tile equations never comes back.
constexpr int kTileTextLength = 53;

// A day record as the refresh reads it.
struct DayRecord {
  Entry entry;           // the handle, to delete or replace the record
  std::string key;       // day and game type: the first five characters (six from day 10000)
  int dayIndex = 0;      // the leading digits
  std::string gameType;  // one character
  int score = 0;         // 0 unfinished, 1..gameRows won on that row, gameRows + 1 lost
  std::string tileText;  // the first 53 characters (54 from day 10000), trimmed at both ends
  std::string marks;     // the last six characters, one per row; a blank is no mark
  int firstCell = 6;     // character position of cell 0 (7 for a five-digit day)
};

std::string buildDayRecord(const ContentView& view, int dayIndex, int score, bool smartModeFlag);

// Writes the shown day's record as a new record; an older one for the day stays for the refresh
// to remove. A guess sent after midnight without a scene change moves `activeDate` by the whole
// of `latestDateIndex`: that is how the game has always behaved, and the next scene change puts
// the day right again.
void storeDay(ContentView& view, CoreDataManager& coreDM, const Clock& clock, int score, bool flag);

// nullopt with a one-line `problem` when the record cannot be read without guessing.
std::optional<DayRecord> parseDayRecord(const Entry& entry, std::string& problem);

// All readable day records in creation order. Each unreadable one is named in one line on `log`
// and left in the store untouched.
std::vector<DayRecord> readDayRecords(const CoreDataManager& coreDM, std::ostream& log);

// The character at record position `position` (a blank past the end); cells start at `firstCell`.
std::string recordCharacter(const DayRecord& record, int position);

// The replay's cells: the characters of `tileText` from cell 0 on, one string each. Empty when the
// game was not begun.
std::vector<std::string> restoredCells(const DayRecord& record);

// Brings records of an older, shorter format to full length at launch. Only the first record is
// looked at: when it is long enough, all are taken to be current.
void padDayRecords(CoreDataManager& coreDM);

// The mark digit of one row, the first that applies of 7, 6/5, 3/2, 4, 1, 0.
char rowMarkDigit(const ContentView& view, int row, bool smartModeFlag);

// Sets the row marks that the six mark characters stand for (nothing is cleared). Returns true
// when a "3" or "6" says the last row was refused by Smart Mode and is not yet played.
bool restoreRowMarks(ContentView& view, std::string_view marks);

}  // namespace tessarine
