#pragma once

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "catalogue/clock.h"
#include "catalogue/lists.h"
#include "engine/random_source.h"
#include "session/content_view.h"
#include "session/day_record_cache.h"
#include "statistics/second_view.h"
#include "statistics/statistics_pass.h"
#include "storage/data_manager.h"

namespace tessarine {

enum class ScenePhase { active, inactive, background };

// The one front door of the game: the app's bridge and the CLI's session runner drive the main
// screen only through this class. Every action runs to its end and leaves `view()` refreshed.
class Session {
 public:
  // Opens the four stores in `dataDirectory` (a store that will not open throws FatalError).
  // Lines about skipped day records go to `log`; the stores print their own failure lines.
  // `busyTimeout` is how long a store waits for a lock held by another process.
  Session(const std::filesystem::path& dataDirectory, const Lists& lists, const Clock& clock,
          RandomSource& random, std::ostream& log = std::cout,
          std::chrono::milliseconds busyTimeout = kBusyTimeout);

  const ContentView& view() const { return view_; }
  const Lists& lists() const { return lists_; }
  const Clock& clock() const { return clock_; }
  // A match runs beside the game on the session's challenge store and random source.
  DataManager& challengeStore() { return stores_.challengeDM; }
  RandomSource& random() { return random_; }

  // Start, options and phases.
  void launch();
  Options options() const { return view_.options(); }
  // Applies a changed game type or option at once: saves the settings record, applies the
  // catalogue and refreshes. Returns false, and does nothing, when nothing changed.
  bool applyOptions(const Options& options);
  // How the board is drawn (a pattern per scoring colour for colour-blind players). Changes no
  // rule, so nothing is refreshed; returns false, and does nothing, when nothing changed.
  const Presentation& presentation() const { return view_.presentation; }
  bool applyPresentation(const Presentation& presentation);
  void changePhase(ScenePhase phase);

  // Entry and submission.
  void enterSymbol(const std::string& symbol);
  // Whether key `symbol` has its action at the cursor's column: operators are dead where they
  // could not stand (first column, beside the equals sign, last column) or where the game type
  // switches them off; a symbol that is not on the keypad is never live.
  bool keyLive(const std::string& symbol) const;
  void touchCell(int column);  // a cell of the active row becomes the active cell
  void clearCell();
  // The physical keyboard: Backspace clears the active cell, or when it is empty the one before;
  // the arrow keys move the cursor one cell within the row (`step` -1 or 1), over an equation's "=".
  void backspace();
  void moveCursor(int step);
  void clearRow();
  void moveCorrectLetters();
  void submitGuess();
  void pressHints();   // raises the hints alert when the button is live
  void confirmHint();  // the alert's "Confirm:"
  void dismissHintsAlert();

  // Writes the shown day as a new record; `rejected` marks a row left open by Smart Mode or Hints.
  void storeDay(int score, bool rejected);
  // Rebuilds the whole session from the stored day records for `gameType` and `activeDate`.
  void reloadDay(bool recomputeStreaks, bool recomputeLatest);

  // Dates.
  void goToToday();         // the "current" date button
  void goToLatestOpen();    // the "first"/latest unfinished date button
  void goForward();         // only with playFutureGames
  void openDateList();      // the calendar button: the wheel opens on the shown day's line
  void pickDate(int line);  // confirm the date list at a line (index = -activeDate)
  void openStatistics();    // the refresh that the statistics sheet shows

  // Statistics and sharing.
  // The statistics screen's copy of the figures as they stand; call openStatistics() first.
  SecondView secondView(double screenWidth = kDefaultScreenWidth) const;
  // The game text of the main screen's share button, offered once the game of the day is over.
  std::optional<std::string> gameShareText() const;
  // Whether the shown day's game can be shared: once it is over.
  bool gameShareable() const { return !view_.showKeypad; }
  // On a finished board a touched tile takes or loses the highlight that hides it from the shared
  // text. Nothing is stored: the next refresh clears it. Returns whether the tile changed.
  bool toggleHighlight(int cell);

  // Alerts.
  void dismissChristmasAlert();

  // Texts the main screen shows, in the language of the settings.
  std::string displayDate(int offset) const;
  // Whether the hints button is live (all its conditions, not only `disableHints`).
  bool hintsButtonLive() const;

 private:
  int today() const;  // today's 0-based day index
  void knowledgeUpdate();
  void refreshKnowledge();  // the keypad passes over the rows up to `activeRow`
  void computeHintsNow();   // filters the hints of the shown day
  void finishWonRow();
  void rewriteShownRecord(const DayRecord& record, int score);
  void deleteRecord(const DayRecord& record);
  bool boardMatchesStore();
  int neededEntries() const;
  const std::vector<std::string>& dateTexts();
  friend class SessionReplay;  // the second half of the refresh

  DataManagers stores_;
  const Lists& lists_;
  const Clock& clock_;
  RandomSource& random_;
  std::ostream& log_;
  ContentView view_;
  DayRecordCache records_;
  StatisticsPass statistics_;
  bool rowJustAccepted_ = false;  // the refresh narrows the hints only after a new accepted row
  bool recordsRead_ = false;      // the last refresh read the day store, not a stale copy
  // Records this session showed or wrote: when a newer one replaces one of them, that is a guess
  // moving the day on. Replacing any other record is news to the player and gets a line.
  std::unordered_set<std::int64_t> shownRecords_;

  struct DateTextKey {
    int today = -1, minimumDay = -1;
    bool english = true, thankYou = false;
    bool operator==(const DateTextKey&) const = default;
  };
  DateTextKey dateTextKey_;
  std::vector<std::string> dateTexts_;
};

}  // namespace tessarine
