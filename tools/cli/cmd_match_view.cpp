#include "cli/cmd_match_view.h"

#include <functional>
#include <map>

namespace tessarine::cli {
namespace {

std::string flag(bool value) {
  return value ? "true" : "false";
}

std::string cellText(const std::string& letter) {
  return letter == kEmptyCell || letter == " " ? "." : letter;
}

template <typename Values>
std::string joined(const Values& values) {
  std::string text;
  for (const auto& value : values) {
    if (!text.empty()) text += " ";
    if constexpr (std::is_same_v<std::decay_t<decltype(value)>, int>) {
      text += std::to_string(value);
    } else {
      text += value;
    }
  }
  return text;
}

using Field = std::function<std::string(const Match&)>;

std::string number(int value) {
  return std::to_string(value);
}

const std::map<std::string, Field, std::less<>>& fields() {
  using M = const Match&;
  static const std::map<std::string, Field, std::less<>> table = [] {
    std::map<std::string, Field, std::less<>> t = {
        {"gameType", [](M m) { return m.state().gameType; }},
        {"numPlayer", [](M m) { return number(m.state().numPlayer); }},
        {"challengeIndex", [](M m) { return number(m.state().challengeIndex); }},
        {"challengeAnswerWord", [](M m) { return m.state().board.answer.text; }},
        {"challengeKey", [](M m) { return m.state().challengeKey; }},
        {"codeNumber", [](M m) { return joined(m.state().codeNumber); }},
        {"numCodeEntries", [](M m) { return number(m.state().numCodeEntries); }},
        {"gameIndex", [](M m) { return number(m.state().gameIndex); }},
        {"errorIndex", [](M m) { return number(m.state().errorIndex); }},
        {"invalidKeyEntry", [](M m) { return flag(m.state().invalidKeyEntry); }},
        {"EnglishWords", [](M m) { return flag(m.state().EnglishWords); }},
        {"activeRow", [](M m) { return number(m.state().activeRow()); }},
        {"numGuesses", [](M m) { return number(m.state().numGuesses); }},
        {"gameLetters", [](M m) { return number(m.state().board.gameLetters); }},
        {"currentPosition", [](M m) { return number(m.state().currentPosition); }},
        {"numCellEntries", [](M m) { return number(m.state().numCellEntries); }},
        {"numStrikes", [](M m) { return number(m.state().numStrikes); }},
        {"numBalls", [](M m) { return number(m.state().numBalls); }},
        {"challengeStarted", [](M m) { return flag(m.state().challengeStarted); }},
        {"opponentFirstGuessWalked", [](M m) { return flag(m.state().opponentFirstGuessWalked); }},
        {"gameOver", [](M m) { return flag(m.state().gameOver); }},
        {"resultsSaved", [](M m) { return flag(m.state().resultsSaved); }},
        {"playerLastGuess", [](M m) { return m.state().playerLastGuess; }},
        {"opponentLastGuess", [](M m) { return m.state().opponentLastGuess; }},
        {"player8thGuess", [](M m) { return m.state().player8thGuess; }},
        {"activeWord", [](M m) { return m.state().activeWord; }},
        {"savedChallengeIndex", [](M m) { return number(m.state().savedChallengeIndex); }},
        {"savedChallengesIndex", [](M m) { return joined(m.scan().savedChallengesIndex); }},
        {"savedChallengesName", [](M m) { return joined(m.scan().savedChallengesName); }},
        {"numberOfSavedChallenges", [](M m) { return number(m.scan().numberOfSavedChallenges); }},
        {"numberOfChallenges", [](M m) { return number(m.scan().numberOfChallenges); }},
        {"numberOfWins", [](M m) { return number(m.scan().numberOfWins); }},
        {"numberOfLosts", [](M m) { return number(m.scan().numberOfLosts); }},
        {"numberOfDraws", [](M m) { return number(m.scan().numberOfDraws); }},
    };
    for (const auto& stored : storedMatchFlags())
      t.emplace(std::string(stored.name), [field = stored.field](M m) { return flag(m.state().*field); });
    return t;
  }();
  return table;
}

}  // namespace

std::string matchBoard(const Match& match) {
  const MatchState& m = match.state();
  std::string text;
  if (m.activeRow() == -1) {
    text += "key";
    for (const auto& cell : m.codeNumber)
      text += " " + cellText(cell);
    text += "\n";
  }
  const Board& b = m.board;
  for (int row = 0; row < m.numGuesses; ++row) {
    std::string letters, colors;
    for (int column = 0; column < b.gameLetters; ++column) {
      const int cell = row * b.gameLetters + column;
      if (cell >= kMatchCells) break;
      letters += cellText(b.cellLetter[static_cast<std::size_t>(cell)]);
      colors += tileColorLetter(b.cellBackground[static_cast<std::size_t>(cell)]);
    }
    text += letters + " " + colors + "\n";
  }
  return text + "activeRow=" + std::to_string(m.activeRow()) + " showKeypad=" + flag(m.showKeypad);
}

std::optional<std::string> matchState(const Match& match, const std::string& name) {
  const auto found = fields().find(name);
  if (found == fields().end()) return std::nullopt;
  return found->second(match);
}

}  // namespace tessarine::cli
