// The refresh: rebuilds the session from the stored day records for `gameType` and `activeDate`.
// Nothing is kept incrementally; colours, marks, keys and hint knowledge all follow from the
// stored letters again.
#include <algorithm>

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"
#include "session/game_setup.h"
#include "session/session.h"
#include "session/session_replay.h"
#include "storage/record_text.h"

namespace tessarine {
namespace {

void resetBoard(ContentView& v) {
  v.displayHintsNumbers = false;
  v.showHintDefinition = false;
  v.showKeypad = true;
  v.disableSubmit = v.disableHints = v.disableGreenButton = true;
  v.clearCells();
  v.clearMarks();
  // Operator keys that the game type switches off never take a colour.
  for (std::size_t k = 0; k < v.keypadKeyColor.size(); ++k)
    v.keypadKeyColor[k] = operatorDisabled(v, v.keypadLetters[k]) ? TileColor::black : TileColor::white;
}

bool recordHasEqualsAt(const DayRecord& record, int column) {
  // Equation records are plain ASCII; anything else takes the careful, character-counting way.
  const std::string& text = record.entry.text;
  const std::size_t position = static_cast<std::size_t>(record.firstCell + column);
  const bool ascii =
      std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii) return position < text.size() && text[position] == '=';
  return recordCharacter(record, static_cast<int>(position)) == "=";
}

}  // namespace

void Session::reloadDay(bool recomputeStreaks, bool recomputeLatest) {
  ContentView& v = view_;
  const int daysNow = daysFromApril1st(clock_);
  resetBoard(v);
  v.refusal = {};
  v.currentPosition = 0;
  v.numCellEntries = 0;
  const std::vector<DayRecord>& records = records_.records(stores_.coreDM, log_);
  recordsRead_ = records_.fresh();
  v.latestDateIndex = daysNow - 1;
  v.answer = shownAnswer(v, lists_);
  // Taken from today's answer once today is known, so the first refresh after launch (and after
  // midnight) compares with the right equation.
  const int equalsPosition = v.prepopulate && isEquationType(v.gameType) ? v.answer.equalsColumn : 0;
  const int shownDay = v.latestDateIndex + v.activeDate;

  ReplayScan scan;
  statistics_.begin(v, v.latestDateIndex);
  const StatisticsScope scope = v.statisticsScope();
  for (int i = 0; i < static_cast<int>(records.size()); ++i) {
    const DayRecord& record = records[i];
    if (record.gameType != v.gameType) continue;
    if (record.dayIndex == shownDay) {
      if (scan.firstMatch == -1) scan.firstMatch = i;
      if (scan.lastMatch != -1) scan.olderMatches.push_back(scan.lastMatch);
      scan.lastMatch = i;
    }
    if (record.dayIndex > v.latestDateIndex) continue;
    const int score = record.score;
    if (score >= 1) {
      if (v.prepopulate && (!isEquationType(v.gameType) || recordHasEqualsAt(record, equalsPosition)))
        scan.prepopulateSource = i;
      if (i == scan.lastMatch) scan.lastScore = score;
    }
    statistics_.count(v, record.dayIndex, score);
  }
  statistics_.finish(v, scope, dateTexts());
  v.activeRow = 0;
  if (recomputeLatest) statistics_.latestDates(v, scope);
  if (recomputeStreaks) statistics_.streaks(v, scope);

  if (scan.lastMatch >= 0) shownRecords_.insert(records[scan.lastMatch].entry.id);
  SessionReplay(*this).run(scan, records);

  // A day and game type has one record after a refresh: submissions write a new record and
  // leave the older ones for this step.
  if (!scan.olderMatches.empty()) {
    if (v.latestUnfinishedDate == v.activeDate) v.latestUnfinishedDate = 1;
    for (const int older : scan.olderMatches) {
      const Entry& entry = records[older].entry;
      if (recordsRead_ && !shownRecords_.contains(entry.id))
        log_ << "Deleted day record \"" << printableRecord(entry.text)
             << "\": a later record holds the same day\n";
      deleteRecord(records[older]);
      v.gamesPlayed -= 1;
    }
  }
  if (v.deleteCoreDataValues && scan.lastMatch != -1) {
    deleteRecord(records[scan.lastMatch]);
    v.gamesPlayed -= 1;
  }

  const bool allFinished = v.gamesCompleted >= v.latestDateIndex + 1 - v.minimumDayIndex;
  if (!v.showKeypad) {
    v.disableFirst = allFinished;
  } else if (v.activeDate < v.latestAvailableDate) {
    v.disableFirst = false;
  } else {
    v.disableFirst = v.latestUnfinishedDate == 1 || v.activeDate >= v.latestUnfinishedDate;
  }
}

}  // namespace tessarine
