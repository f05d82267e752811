// A pasted text fills the key or the received guess and nothing else; the player still submits.
#include "challenge/challenge_record.h"
#include "core/match_fixture.h"

namespace tessarine::testing {
namespace {

TEST_F(MatchTest, PastingTheOpeningTextFillsTheKeyThenTheGuess) {
  for (const bool english : {true, false}) {
    SCOPED_TRACE(english);
    a_.match = std::make_unique<Match>(lists_, *a_.store, a_.random, english);
    b_.match = std::make_unique<Match>(lists_, *b_.store, b_.random, english);
    a_.match->openChallenge("C");
    a_.guess("CRANE");
    const std::string sent = matchShareText(a_.s(), english);
    b_.match->acceptChallenge();
    EXPECT_EQ(b_.match->paste(sent), "");
    EXPECT_EQ(b_.s().activeRow(), -1) << "a paste never submits";
    b_.match->submitRow();
    ASSERT_EQ(b_.s().activeRow(), 0);
    EXPECT_EQ(b_.match->paste(sent), "");
    EXPECT_EQ(rowWord(b_.s().board, 0), "CRANE");
    b_.match->submitRow();
    EXPECT_EQ(b_.s().challengeKey, a_.s().challengeKey);
  }
}

TEST_F(MatchTest, APasteThatCannotBeUsedChangesNothing) {
  open("C", "CRANE");
  b_.guess("DECOR");
  const struct {
    const char* text;
    bool received;  // "guess received" has been chosen
    const char* message;
  } cases[] = {
      {"2nd guess is DECOR\n", false, "Choose what your opponent did before pasting their guess"},
      {"hello there", true, "No challenge key or guess found in the pasted text"},
      {"2nd guess is TOOLONG\n", true, "No guess that fits this row in the pasted text"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    if (c.received && !a_.s().selectedGuessReceived) a_.match->chooseGuessReceived();
    const MatchState before = a_.s();
    EXPECT_EQ(a_.match->paste(c.text), c.message);
    EXPECT_EQ(a_.s().board.cellLetter, before.board.cellLetter);
    EXPECT_EQ(a_.s().numCellEntries, before.numCellEntries);
  }
}

TEST_F(MatchTest, LeavingBeforeTheFirstGuessKeepsTheAnswerUsed) {
  a_.match->openChallenge("C");
  const int drawn = a_.s().challengeIndex;
  a_.match->leave();
  const auto entries = ChallengeDataManager(a_.dir).getAllEntries();
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries[0].text, usedAnswerRecord(drawn, "C"));
}

}  // namespace
}  // namespace tessarine::testing
