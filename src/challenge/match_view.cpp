#include "challenge/challenge_key.h"
#include "challenge/match.h"
#include "challenge/match_texts.h"

namespace tessarine {

MatchView Match::view() const {
  MatchView v;
  const MatchState& m = m_;
  v.atKey = m.activeRow() == -1;
  v.keyCells = m.codeNumber;
  v.board = &m.board;
  v.keypad = &m.keypad;
  v.showKeypad = m.showKeypad && !m.waitingForGuess;
  v.submitEnabled = !m.disableSubmit;
  v.showChoices = m.waitingForGuess;
  for (const MatchChoice choice : offeredChoices())
    v.choices.push_back({choice, choiceLabel(m, choice, english_)});
  const bool ownTurn = !m.opponentGuess && !m.waitingForGuess && !m.gameOver;
  v.showWalkButton = ownTurn && m.activeRow() >= 1;
  v.walkSelected = m.selectedIntentionalWalk;
  v.showUndo = m.enteringGuess && m.activeRow() >= 1 && !m.gameOver;
  v.showTrash = m.showKeypad && !m.waitingForGuess;
  v.showQuestion = m.opponentGuess && m.smartModeError;
  v.ballLamps = m.numBalls;
  v.strikeLamps = m.numStrikes;
  v.titleLine = matchTitleLine(m, english_);
  if (v.titleLine == m.challengeKey) {
    for (const int digit : challengeKeyDigits(m.gameType, m.challengeIndex))
      v.titleKeyDigits += static_cast<char>('0' + digit);
    // A type without a number has no key a screen could draw as digits.
    if (!isKeyDigits(v.titleKeyDigits)) v.titleKeyDigits.clear();
  }
  v.statusLine = matchStatusLine(m, english_);
  v.statusSecondLine = matchStatusSecondLine(m, english_);
  v.sendLabel = sendButtonLabel(m, english_);
  v.gameOver = m.gameOver;
  v.offersAccept = m.numPlayer == 1 && m.activeRow() == 0 && !m.challengeStarted;
  v.offersSave = m.challengeStarted && !m.gameOver;
  v.offersPaste = v.atKey || canTypeReceivedGuess();
  v.banner = matchBanner(m, english_);
  v.bannerAnswer = matchBannerAnswer(m, lists_, english_);
  return v;
}

std::string Match::shareText() const {
  return m_.gameOver ? matchFinalText(m_, lists_, english_) : matchShareText(m_, english_);
}

}  // namespace tessarine
