// Turn rules between two devices on the shipped lists. Seed 7 makes RELIC the answer of type "C".
#include "core/match_fixture.h"

namespace tessarine::testing {
namespace {

std::vector<std::string> records(Device& device) {
  std::vector<std::string> texts;
  for (const auto& entry : ChallengeDataManager(device.dir).getAllEntries())
    texts.push_back(entry.text);
  return texts;
}

TEST_F(MatchTest, OpeningBindsBothDevicesToOneAnswer) {
  open("C", "CRANE");
  EXPECT_EQ(a_.s().board.answer.text, "RELIC");
  EXPECT_EQ(b_.s().board.answer.text, "RELIC");
  EXPECT_EQ(b_.s().challengeKey, a_.s().challengeKey);
  EXPECT_EQ(b_.s().numPlayer, 2);
  EXPECT_EQ(b_.s().activeRow(), 1);
  // The accepter sees colours at once; the initiator only once the reply is in.
  EXPECT_EQ(b_.s().board.cellBackground[0], TileColor::yellow);
  EXPECT_EQ(a_.s().board.cellBackground[0], TileColor::white);
}

TEST_F(MatchTest, AnOpeningGuessEqualToTheAnswerMovesTheAnswer) {
  a_.match->openChallenge("C");
  const int drawn = a_.s().challengeIndex;
  a_.guess("RELIC");
  EXPECT_EQ(a_.s().challengeIndex, drawn + 1);
  EXPECT_NE(a_.s().board.answer.text, "RELIC");
  EXPECT_EQ(a_.s().challengeKey, makeChallengeKey("C", drawn + 1));
}

TEST_F(MatchTest, StrikesCountDistinctInvalidWords) {
  open("C", "CRANE");
  const struct {
    const char* word;
    int strikes;
    bool repeated;
  } steps[] = {{"QQQQQ", 1, false}, {"QQQQQ", 1, true}, {"QQQQQ", 1, true}, {"XXXXX", 2, false}};
  for (const auto& step : steps) {
    b_.guess(step.word);
    EXPECT_EQ(b_.s().numStrikes, step.strikes) << step.word;
    EXPECT_EQ(b_.s().repeatedEntry, step.repeated) << step.word;
    EXPECT_FALSE(b_.s().waitingForGuess);
  }
  b_.guess("ZZZZZ");
  EXPECT_TRUE(b_.s().youStruckOut);
  EXPECT_EQ(b_.s().numStrikes, 0);
  EXPECT_EQ(b_.s().playerLastGuess, " ");
  EXPECT_EQ(matchShareText(b_.s(), true), "I struck out.\n" + b_.s().challengeKey);
}

TEST_F(MatchTest, ARepeatedGuessCostsNothing) {
  open("C", "CRANE");
  b_.guess("CRANE");
  EXPECT_TRUE(b_.s().repeatedGuess);
  EXPECT_EQ(b_.s().numStrikes + b_.s().numBalls, 0);
  EXPECT_EQ(matchStatusLine(b_.s(), true), "Guess Was Used Previously");
  EXPECT_EQ(b_.s().board.cellBackground[5], TileColor::purple);
}

TEST_F(MatchTest, FourBallsWalkThePlayerAndKeepTheLastGuess) {
  open("C", "CRANE");
  for (const char* word : {"GHOST", "PLUMB", "DIVOT"}) {
    b_.guess(word);
    EXPECT_TRUE(b_.s().smartModeError) << word;
  }
  EXPECT_EQ(b_.s().numBalls, 3);
  EXPECT_EQ(matchStatusLine(b_.s(), true), "Smart Mode Error");
  b_.guess("JUMPY");
  EXPECT_TRUE(b_.s().youWalked);
  EXPECT_EQ(b_.s().playerLastGuess, "JUMPY");
  EXPECT_EQ(sendButtonLabel(b_.s(), true), "You Walked");
  EXPECT_EQ(matchShareText(b_.s(), false), "Caminé.\n" + b_.s().challengeKey);
}

TEST_F(MatchTest, AReceivedGuessThatBreaksTheColoursIsRefusedWithoutCost) {
  open("C", "CRANE");
  b_.guess("DECOR");
  a_.match->chooseGuessReceived();
  a_.guess("GHOST");  // mistyped from the message
  EXPECT_TRUE(a_.s().smartModeError);
  EXPECT_EQ(a_.s().numBalls + a_.s().numStrikes, 0);
  EXPECT_EQ(matchShareText(a_.s(), true),
            "Did you enter CRANE for my first guess?\nAnd use challenge Key " + a_.s().challengeKey);
  a_.guess("DECOR");
  EXPECT_FALSE(a_.s().opponentGuess);
  EXPECT_EQ(a_.s().activeRow(), 2);
}

TEST_F(MatchTest, WalkAndStrikeOnConsecutiveTurnsLoseTheMatchOnBothDevices) {
  open("C", "CRANE");
  b_.match->chooseIntentionalWalk();
  b_.match->submitRow();
  a_.match->chooseWalked();
  EXPECT_TRUE(a_.s().opponentFirstGuessWalked);
  a_.match->submitRow();
  a_.guess("DECOR");
  relay(a_, b_);
  for (const char* word : {"QQQQQ", "XXXXX", "ZZZZZ"})
    b_.guess(word);
  a_.match->chooseStruckOut();
  a_.match->submitRow();
  ASSERT_TRUE(a_.s().gameOver && b_.s().gameOver);
  EXPECT_EQ(matchResult(a_.s()), MatchResult::win);
  EXPECT_EQ(matchResult(b_.s()), MatchResult::loss);
  // The first reply was a walk on A's device: that match is not counted there.
  EXPECT_TRUE(records(a_).empty());
  EXPECT_EQ(records(b_), std::vector<std::string>{paddedDayIndex(b_.s().challengeIndex) + "CL"});
}

TEST_F(MatchTest, ChoicesOfferedAfterAFindAndUndo) {
  open("C", "CRANE");
  b_.guess("RELIC");
  EXPECT_EQ(b_.match->offeredChoices(), (std::vector{MatchChoice::foundAnswer, MatchChoice::missedAnswer}));
  EXPECT_EQ(sendButtonLabel(b_.s(), true), "Request Final Guess");
  a_.match->chooseFoundAnswer();
  EXPECT_EQ(matchStatusLine(a_.s(), true), "Opponent Found Answer");
  a_.match->undoChoice();
  EXPECT_TRUE(a_.s().waitingForGuess);
  EXPECT_EQ(a_.s().board.cellBackground[5], TileColor::pink);
  a_.match->chooseFoundAnswer();
  a_.match->submitRow();
  EXPECT_EQ(matchStatusLine(a_.s(), true), "Enter Your Final Guess");
  a_.guess("RELIC");
  b_.match->chooseFoundAnswer();
  b_.match->submitRow();
  EXPECT_EQ(matchBanner(a_.s(), true), "DRAW");
  EXPECT_EQ(matchBanner(b_.s(), false), "EMPATAR");
}

TEST_F(MatchTest, SavedMatchReopensWithItsColours) {
  open("C", "CRANE");
  b_.guess("DECOR");
  ASSERT_EQ(b_.match->saveMatch("  Lunch  "), std::nullopt);
  const MatchState before = b_.s();
  b_.match = std::make_unique<Match>(lists_, *b_.store, b_.random, true);
  b_.match->openChallenge("C");
  ASSERT_EQ(b_.match->scan().savedChallengesName, std::vector<std::string>{"Lunch"});
  ASSERT_TRUE(b_.match->continueSaved(0));
  EXPECT_EQ(b_.s().board.cellLetter, before.board.cellLetter);
  EXPECT_EQ(b_.s().board.cellBackground, before.board.cellBackground);
  EXPECT_EQ(b_.s().challengeKey, before.challengeKey);
  EXPECT_TRUE(b_.s().waitingForGuess);
}

}  // namespace
}  // namespace tessarine::testing
