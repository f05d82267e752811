#pragma once

#include <filesystem>
#include <string>

#include "catalogue/clock.h"
#include "catalogue/lists.h"
#include "engine/random_source.h"
#include "session/content_view.h"
#include "storage/data_manager.h"

namespace tessarine {

enum class ScenePhase { active, inactive, background };

// The one front door of the game: the app's bridge and the CLI's session runner drive the main
// screen only through this class. Every action runs to its end and leaves `view()` refreshed.
class Session {
 public:
  // Opens the four stores in `dataDirectory` (a store that will not open throws FatalError).
  Session(const std::filesystem::path& dataDirectory, const Lists& lists, const Clock& clock,
          RandomSource& random);

  const ContentView& view() const { return view_; }
  ContentView& mutableView() { return view_; }  // options screen edits, then applyOptions()
  const Lists& lists() const { return lists_; }
  const Clock& clock() const { return clock_; }

  // Start, options and phases.
  void launch();
  void applyOptions();
  void changePhase(ScenePhase phase);

  // Entry and submission.
  void enterSymbol(const std::string& symbol);
  void touchCell(int column);
  void clearCell();
  void clearRow();
  void moveCorrectLetters();
  void submitGuess();
  void pressHints();    // raises the hints alert when the button is live
  void confirmHint();   // the alert's "Confirm:"
  void dismissHintsAlert();

  // Dates.
  void goToToday();          // the "current" date button
  void goToLatestOpen();     // the "first"/latest unfinished date button
  void goForward();          // only with playFutureGames
  void pickDate(int line);   // confirm the date list at a line (index = -activeDate)

  // Alerts.
  void dismissChristmasAlert();

  // Texts the main screen shows, in the language of the settings.
  std::string displayDate(int offset) const;

 private:
  DataManagers stores_;
  const Lists& lists_;
  const Clock& clock_;
  RandomSource& random_;
  ContentView view_;
};

}  // namespace tessarine
