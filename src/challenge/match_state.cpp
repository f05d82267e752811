#include "challenge/match_state.h"

namespace tessarine {

const std::array<MatchFlagField, 23>& storedMatchFlags() {
  using M = MatchState;
  static const std::array<MatchFlagField, 23> flags = {{
      {"disableSubmit", &M::disableSubmit},
      {"showKeypad", &M::showKeypad},
      {"enteringGuess", &M::enteringGuess},
      {"opponentGuess", &M::opponentGuess},
      {"waitingForGuess", &M::waitingForGuess},
      {"youWonGame", &M::youWonGame},
      {"opponentWonGame", &M::opponentWonGame},
      {"smartModeError", &M::smartModeError},
      {"invalidGuess", &M::invalidGuess},
      {"repeatedGuess", &M::repeatedGuess},
      {"repeatedEntry", &M::repeatedEntry},
      {"youWalked", &M::youWalked},
      {"youStruckOut", &M::youStruckOut},
      {"youMissedFinalGuess", &M::youMissedFinalGuess},
      {"opponentWalked", &M::opponentWalked},
      {"opponentStruckOut", &M::opponentStruckOut},
      {"opponentMissedFinalGuess", &M::opponentMissedFinalGuess},
      {"selectedGuessReceived", &M::selectedGuessReceived},
      {"selectedFoundAnswer", &M::selectedFoundAnswer},
      {"selectedMissedFinalGuess", &M::selectedMissedFinalGuess},
      {"selectedWalked", &M::selectedWalked},
      {"selectedStuckOut", &M::selectedStuckOut},
      {"selectedIntentionalWalk", &M::selectedIntentionalWalk},
  }};
  return flags;
}

}  // namespace tessarine
