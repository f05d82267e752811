#include "session/session.h"

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"

namespace tessarine {

// Placeholder bodies: the full game session replaces them.
Session::Session(const std::filesystem::path& dataDirectory, const Lists& lists, const Clock& clock,
                 RandomSource& random)
    : stores_(dataDirectory), lists_(lists), clock_(clock), random_(random) {}

void Session::launch() {
  if (view_.gameType != "Ó") return;
  view_.gameType = "C";
  applyCatalogue(view_);
}

void Session::applyOptions() { applyCatalogue(view_); }
void Session::changePhase(ScenePhase) {}
void Session::enterSymbol(const std::string&) {}
void Session::touchCell(int) {}
void Session::clearCell() {}
void Session::clearRow() {}
void Session::moveCorrectLetters() {}
void Session::submitGuess() {}
void Session::pressHints() {}
void Session::confirmHint() {}
void Session::dismissHintsAlert() {}
void Session::goToToday() {}
void Session::goToLatestOpen() {}
void Session::goForward() {}
void Session::pickDate(int) {}
void Session::dismissChristmasAlert() {}

std::string Session::displayDate(int offset) const {
  return displayDateString(clock_, offset, view_.thankYouFlag, view_.EnglishTranslation);
}

}  // namespace tessarine
