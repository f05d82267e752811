#include "match_texts.h"

#include "challenge/match_screen_texts.h"
#include "core_text.h"

void MatchTexts::load(const std::string& gameType, bool english) {
  const tessarine::MatchScreenTexts t = tessarine::matchScreenTexts(gameType, english);
  const QString before = heading + continueSaved + balls;
  heading = fromCore(t.heading);
  balls = fromCore(t.balls);
  strikes = fromCore(t.strikes);
  accept = fromCore(t.acceptChallenge);
  paste = fromCore(t.pasteMessage);
  saveTitle = fromCore(t.saveTitle);
  namePrompt = fromCore(t.namePrompt);
  save = fromCore(t.save);
  cancel = fromCore(t.cancel);
  remove = fromCore(t.remove);
  deleteTitle = fromCore(t.deleteTitle);
  selectTitle = fromCore(t.selectTitle);
  selectButton = fromCore(t.selectButton);
  continueSaved = fromCore(t.continueSaved);
  // The language and the game type show in these three.
  if (before != heading + continueSaved + balls) emit changed();
}
