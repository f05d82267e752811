// The session runner: the real game session on real stores, driven one command a line from stdin.
#include <filesystem>
#include <iostream>
#include <map>
#include <sstream>

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"
#include "catalogue/fatal_error.h"
#include "cli/cmd_session_sheet.h"
#include "cli/cmd_session_statistics.h"
#include "cli/cmd_session_view.h"
#include "cli/command.h"
#include "cli/line_runner.h"
#include "screens/refusal_message.h"
#include "session/session.h"
#include "session/session_texts.h"

namespace tessarine::cli {
namespace {

std::optional<LocalDateTime> parseClock(const std::string& text) {
  // YYYY-MM-DDTHH:MM
  if (text.size() != 16 || text[10] != 'T' || text[13] != ':') return std::nullopt;
  const auto date = parseIsoDate(std::string_view(text).substr(0, 10));
  if (!date) return std::nullopt;
  int hour = 0, minute = 0;
  try {
    hour = parseInt(std::string_view(text).substr(11, 2), "hour");
    minute = parseInt(std::string_view(text).substr(14, 2), "minute");
  } catch (const UsageError&) {
    return std::nullopt;
  }
  if (hour < 0 || hour > 23 || minute < 0 || minute > 59) return std::nullopt;
  return LocalDateTime{date->year, date->month, date->day, hour, minute, 0};
}

class Runner {
 public:
  Runner(const Args& args)
      : directory_(*args.option("data")),
        source_(listSourceFor(args)),
        lists_(*source_),
        clock_(startClock(args)),
        random_(args.option("seed") ? parseInt(*args.option("seed"), "--seed") : 1) {
    // The stores make the folder themselves; one that cannot be made is their fatal error.
    restart();
  }

  void execute(const std::string& line) {
    std::istringstream words(line);
    std::string verb, argument, extra;
    words >> verb;
    std::getline(words >> std::ws, argument);
    if (verb.empty() || verb[0] == '#') return;
    Session& s = *session_;
    if (statistics_.execute(s, verb, argument, std::cout)) return;
    if (verb == "type") {
      if (findGameType(argument) == nullptr) throw CommandError{"unknown game type '" + argument + "'"};
      Options options = s.options();
      options.gameType = argument;
      s.applyOptions(options);
    } else if (verb == "option") {
      std::istringstream parts(argument);
      std::string name, value;
      parts >> name >> value;
      const OptionInfo* option = findOption(name);
      if (option == nullptr || (value != "Y" && value != "N")) throw CommandError{"usage: option NAME Y|N"};
      Options options = s.options();
      options.*option->field = value == "Y";
      s.applyOptions(options);
    } else if (verb == "colourblind") {
      if (argument != "Y" && argument != "N") throw CommandError{"usage: colourblind Y|N"};
      s.applyPresentation({.colourBlind = argument == "Y"});
    } else if (verb == "sheet") {
      sheet_.run(s, argument);
    } else if (verb == "restart") {
      restart();
    } else if (verb == "phase") {
      if (argument == "active")
        s.changePhase(ScenePhase::active);
      else if (argument == "inactive")
        s.changePhase(ScenePhase::inactive);
      else if (argument == "background")
        s.changePhase(ScenePhase::background);
      else
        throw CommandError{"usage: phase active|inactive|background"};
    } else if (verb == "clock") {
      const auto at = parseClock(argument);
      if (!at) throw CommandError{"usage: clock YYYY-MM-DDTHH:MM"};
      clock_.set(*at);
    } else if (verb == "keys") {
      if (argument.empty()) throw CommandError{"usage: keys TEXT"};
      keys(argument);
    } else if (verb == "touch") {
      s.touchCell(number(argument, "touch COLUMN"));
    } else if (verb == "clearcell") {
      s.clearCell();
    } else if (verb == "clearrow") {
      s.clearRow();
    } else if (verb == "backspace") {
      s.backspace();
    } else if (verb == "left" || verb == "right") {
      s.moveCursor(verb == "left" ? -1 : 1);
    } else if (verb == "message") {
      std::cout << refusalMessage(s.view()) << "\n";
    } else if (verb == "scoreline") {
      for (const std::string& line :
           {scoreLine(s.view()), lostAnswerLine(s.view()), definitionLine(s.view(), s.lists())})
        if (!line.empty()) std::cout << line << "\n";
    } else if (verb == "green") {
      if (s.view().disableGreenButton) throw CommandError{"the green button is off"};
      s.moveCorrectLetters();
    } else if (verb == "submit") {
      s.submitGuess();
    } else if (verb == "guess") {
      if (argument.empty()) throw CommandError{"usage: guess WORD"};
      keys(argument);
      s.submitGuess();
    } else if (verb == "hint") {
      if (!s.hintsButtonLive()) throw CommandError{"the hints button is off"};
      s.pressHints();
      s.confirmHint();
    } else if (verb == "date") {
      date(argument);
    } else if (verb == "board") {
      std::cout << sessionBoard(s.view()) << "\n";
    } else if (verb == "state") {
      const auto value = sessionState(s, argument);
      if (!value) throw CommandError{"unknown state name '" + argument + "'"};
      std::cout << argument << "=" << *value << "\n";
    } else {
      throw CommandError{"unknown command '" + verb + "'"};
    }
  }

 private:
  static FixedClock startClock(const Args& args) {
    const auto today = args.option("today");
    const auto date = today ? parseIsoDate(*today) : std::nullopt;
    if (!date) throw UsageError{"session needs --today YYYY-MM-DD"};
    return FixedClock(LocalDateTime{date->year, date->month, date->day, 12, 0, 0});
  }

  static int number(const std::string& text, const std::string& usage) {
    try {
      return parseInt(text, "N");
    } catch (const UsageError&) {
      throw CommandError{"usage: " + usage};
    }
  }

  void restart() {
    session_.reset();  // the stores close before they open again, as on a relaunch
    session_ = std::make_unique<Session>(directory_, lists_, clock_, random_);
    session_->launch();
  }

  void keys(const std::string& text) {
    for (const std::string& symbol : splitSymbols(text)) {
      if (!session_->keyLive(symbol)) {
        std::cout << "error: key '" << symbol << "' is dead here\n";
        continue;
      }
      session_->enterSymbol(symbol);
    }
  }

  void date(const std::string& argument) {
    Session& s = *session_;
    if (argument == "today") return s.goToToday();
    if (argument == "latest") {
      if (s.view().disableFirst) throw CommandError{"the latest-open-day button is off"};
      return s.goToLatestOpen();
    }
    if (argument == "forward") return s.goForward();
    if (argument.rfind("pick ", 0) == 0) {
      const int line = number(argument.substr(5), "date pick N");
      if (line < 0 || line >= static_cast<int>(s.view().allDatesInfo.size()))
        throw CommandError{"no date line " + std::to_string(line)};
      s.openDateList();
      return s.pickDate(line);
    }
    throw CommandError{"usage: date today|latest|pick N"};
  }

  std::filesystem::path directory_;
  std::unique_ptr<ListSource> source_;
  Lists lists_;
  FixedClock clock_;
  SplitMix64 random_;
  std::unique_ptr<Session> session_;
  SheetCommands sheet_;
  StatisticsCommands statistics_;
};

int session(const Args& args) {
  if (!args.option("data")) throw UsageError{"session needs --data DIR"};
  return runLines<Runner>(args);
}

const Registrar sessionCommand(
    {"session", "session --data DIR [--resources DIR] --today YYYY-MM-DD [--seed N]  (commands on stdin)",
     session});

}  // namespace
}  // namespace tessarine::cli
