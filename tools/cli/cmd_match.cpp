// The match runner: one device's side of a two-player challenge on a real challenge store, driven
// one command a line from stdin. Two runners and the share texts passed between them play a match.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"
#include "challenge/challenge_records.h"
#include "challenge/match.h"
#include "challenge/match_texts.h"
#include "cli/cmd_match_view.h"
#include "cli/command.h"
#include "cli/line_runner.h"
#include "engine/random_source.h"

namespace tessarine::cli {
namespace {

int number(const std::string& text, const std::string& usage) {
  try {
    return parseInt(text, "N");
  } catch (const UsageError&) {
    throw CommandError{"usage: " + usage};
  }
}

class MatchRunner {
 public:
  explicit MatchRunner(const Args& args)
      : source_(listSourceFor(args)),
        lists_(*source_),
        random_(args.option("seed") ? static_cast<std::uint64_t>(parseInt(*args.option("seed"), "--seed"))
                                    : 1),
        store_(dataFolder(args)),
        match_(lists_, store_, random_, !args.flag("spanish")) {}

  void execute(const std::string& line) {
    std::istringstream words(line);
    std::string verb, argument;
    words >> verb;
    std::getline(words >> std::ws, argument);
    if (verb.empty() || verb[0] == '#') return;
    if (verb == "echo") {
      std::cout << argument << "\n";
    } else if (verb == "open") {
      if (findGameType(argument) == nullptr || challengeTypeNumber(argument) == 0)
        throw CommandError{"no challenge of game type '" + argument + "'"};
      match_.openChallenge(argument);
    } else if (verb == "accept") {
      match_.acceptChallenge();
    } else if (verb == "key") {
      key(argument);
    } else if (verb == "keys") {
      keys(argument);
    } else if (verb == "submit") {
      submit();
    } else if (verb == "guess") {
      guess(argument);
    } else if (verb == "clearrow") {
      match_.clearRow();
    } else if (verb == "choose") {
      choose(argument);
    } else if (verb == "walk") {
      walk();
    } else if (verb == "cancelwalk") {
      match_.cancelIntentionalWalk();
    } else if (verb == "undo") {
      match_.undoChoice();
    } else if (verb == "paste") {
      paste(argument);
    } else {
      executeRecords(verb, argument);
    }
  }

 private:
  static std::filesystem::path dataFolder(const Args& args) {
    if (!args.option("today") || !parseIsoDate(*args.option("today")))
      throw UsageError{"match needs --today YYYY-MM-DD"};
    std::filesystem::path folder = *args.option("data");
    std::filesystem::create_directories(folder);
    return folder;
  }

  void executeRecords(const std::string& verb, const std::string& argument) {
    const bool english = match_.english();
    const MatchState& m = match_.state();
    if (verb == "save") {
      if (const auto message = match_.saveMatch(argument)) throw CommandError{*message};
    } else if (verb == "leave") {
      match_.leave();
    } else if (verb == "saved") {
      for (const auto& name : match_.scan().savedChallengesName)
        std::cout << name << "\n";
    } else if (verb == "continue") {
      if (!match_.continueSaved(number(argument, "continue N")))
        throw CommandError{"no saved match " + argument};
    } else if (verb == "delete") {
      if (!match_.deleteSaved(number(argument, "delete N"))) throw CommandError{"no saved match " + argument};
    } else if (verb == "share") {
      std::cout << match_.shareText() << "\n~~~\n";
    } else if (verb == "final") {
      std::cout << matchFinalText(m, lists_, english) << "\n~~~\n";
    } else if (verb == "board") {
      std::cout << matchBoard(match_) << "\n";
    } else if (verb == "status") {
      std::cout << matchStatusLine(m, english) << "\n";
      if (const auto second = matchStatusSecondLine(m, english); !second.empty()) std::cout << second << "\n";
    } else if (verb == "label") {
      std::cout << sendButtonLabel(m, english) << "\n";
    } else if (verb == "title") {
      std::cout << matchTitleLine(m, english) << "\n";
    } else if (verb == "banner") {
      std::cout << matchBanner(m, english) << "\n";
    } else if (verb == "state") {
      const auto value = matchState(match_, argument);
      if (!value) throw CommandError{"unknown state name '" + argument + "'"};
      std::cout << argument << "=" << *value << "\n";
    } else if (verb == "stats" || verb == "statstext") {
      match_.rescan(m.gameType);
      if (verb == "statstext") {
        std::cout << challengeStatisticsText(match_.scan(), m.gameType, english) << "\n~~~\n";
      } else {
        for (const auto& line : challengeStatisticsLines(match_.scan(), english))
          std::cout << line << "\n";
      }
    } else {
      throw CommandError{"unknown command '" + verb + "'"};
    }
  }

  void key(const std::string& digits) {
    if (!isKeyDigits(digits)) throw CommandError{"usage: key DIGITS (six digits)"};
    if (!match_.typeKey(digits)) throw CommandError{"not at the key"};
    match_.submitRow();
  }

  void keys(const std::string& text) {
    for (const std::string& symbol : splitSymbols(text)) {
      if (match_.state().activeRow() == -1) {
        if (symbol.size() != 1 || symbol[0] < '0' || symbol[0] > '9')
          throw CommandError{"the key takes digits"};
        match_.enterKeyDigit(symbol[0] - '0');
      } else {
        match_.enterSymbol(symbol);
      }
    }
  }

  // A pasted text, with "\\n" for its line ends: fills the key or the received guess.
  void paste(const std::string& escaped) {
    std::string text;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
      if (escaped[i] == '\\' && i + 1 < escaped.size() && escaped[i + 1] == 'n') {
        text += '\n';
        ++i;
      } else {
        text += escaped[i];
      }
    }
    if (const std::string message = match_.paste(text); !message.empty()) throw CommandError{message};
  }

  void submit() {
    if (match_.state().disableSubmit) throw CommandError{"submit is off"};
    match_.submitRow();
  }

  // The word goes in from the row's first cell, over any carried-forward letters.
  void guess(const std::string& word) {
    const MatchState& m = match_.state();
    if (m.activeRow() < 0 || !m.showKeypad || m.waitingForGuess) throw CommandError{"no row to type into"};
    if (!match_.typeWord(word))
      throw CommandError{"a guess has " + std::to_string(m.board.gameLetters) + " symbols"};
    submit();
  }

  void choose(const std::string& name) {
    static const std::map<std::string, MatchChoice> kChoices = {{"received", MatchChoice::guessReceived},
                                                                {"found", MatchChoice::foundAnswer},
                                                                {"walked", MatchChoice::walked},
                                                                {"struck", MatchChoice::struckOut},
                                                                {"missed", MatchChoice::missedAnswer}};
    const auto found = kChoices.find(name);
    if (found == kChoices.end()) throw CommandError{"usage: choose received|found|walked|struck|missed"};
    const auto offered = match_.offeredChoices();
    if (std::find(offered.begin(), offered.end(), found->second) == offered.end())
      throw CommandError{"choice '" + name + "' is not offered"};
    switch (found->second) {
      case MatchChoice::guessReceived:
        return match_.chooseGuessReceived();
      case MatchChoice::foundAnswer:
        return match_.chooseFoundAnswer();
      case MatchChoice::walked:
        return match_.chooseWalked();
      case MatchChoice::struckOut:
        return match_.chooseStruckOut();
      case MatchChoice::missedAnswer:
        return match_.chooseMissedAnswer();
    }
  }

  // The walk button, then submit: the fill stands in the row until it is sent.
  void walk() {
    if (!match_.view().showWalkButton) throw CommandError{"no walk on this turn"};
    match_.chooseIntentionalWalk();
  }

  std::unique_ptr<ListSource> source_;
  Lists lists_;
  SplitMix64 random_;
  ChallengeDataManager store_;
  Match match_;
};

int match(const Args& args) {
  if (!args.option("data")) throw UsageError{"match needs --data DIR"};
  return runLines<MatchRunner>(args);
}

const Registrar command(
    {"match",
     "match --data DIR --today YYYY-MM-DD [--seed N] [--spanish] [--resources DIR]: "
     "one side of a challenge on commands from stdin (open T, accept, key DIGITS, guess WORD, "
     "choose ..., walk, share, final, board, status, state NAME, save NAME, saved, ...)",
     match});

}  // namespace
}  // namespace tessarine::cli
