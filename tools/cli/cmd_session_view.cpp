#include "cli/cmd_session_view.h"

#include <functional>
#include <map>

#include "session/session_texts.h"

namespace tessarine::cli {
namespace {

std::string flag(bool value) {
  return value ? "true" : "false";
}

template <typename Array>
std::string joined(const Array& values) {
  std::string text;
  for (const auto& value : values)
    text += (text.empty() ? "" : " ") + std::to_string(value);
  return text;
}

std::string digits(const RowMarks& marks) {
  std::string text;
  for (const bool mark : marks)
    text += mark ? '1' : '0';
  return text;
}

std::string lines(const std::vector<std::string>& values) {
  std::string text;
  for (std::size_t i = 0; i < values.size(); ++i)
    text += (i ? "\n" : "") + std::to_string(i) + ": " + values[i];
  return text;
}

using Field = std::function<std::string(const Session&)>;

const std::map<std::string, Field, std::less<>>& fields() {
  using S = const Session&;
  static const std::map<std::string, Field, std::less<>> table = {
      {"activeDate", [](S s) { return std::to_string(s.view().activeDate); }},
      {"activeRow", [](S s) { return std::to_string(s.view().activeRow); }},
      {"allDatesInfo", [](S s) { return lines(s.view().allDatesInfo); }},
      {"allHints", [](S s) { return std::to_string(s.view().allHints.size()); }},
      {"ChristmasMessage", [](S s) { return s.view().ChristmasMessage; }},
      {"currentPosition", [](S s) { return std::to_string(s.view().currentPosition); }},
      {"currentStreakStart", [](S s) { return std::to_string(s.view().currentStreakStart); }},
      {"dateAscending", [](S s) { return joined(s.view().dateAscending); }},
      {"colourBlind", [](S s) { return flag(s.presentation().colourBlind); }},
      {"definitionLine", [](S s) { return definitionLine(s.view(), s.lists()); }},
      {"disableCurrent", [](S s) { return flag(s.view().disableCurrent); }},
      {"disableFirst", [](S s) { return flag(s.view().disableFirst); }},
      {"disableGreenButton", [](S s) { return flag(s.view().disableGreenButton); }},
      {"disableHints", [](S s) { return flag(s.view().disableHints); }},
      {"disableSubmit", [](S s) { return flag(s.view().disableSubmit); }},
      {"displayHintsNumbers", [](S s) { return flag(s.view().displayHintsNumbers); }},
      {"gameType", [](S s) { return s.view().gameType; }},
      {"gamesCompleted", [](S s) { return std::to_string(s.view().gamesCompleted); }},
      {"gamesPlayed", [](S s) { return std::to_string(s.view().gamesPlayed); }},
      {"hintDefinitionLine", [](S s) { return hintDefinitionLine(s.view(), s.lists()); }},
      {"hintsButtonLive", [](S s) { return flag(s.hintsButtonLive()); }},
      {"hintsCountLine", [](S s) { return hintsCountLine(s.view()); }},
      {"latestAvailableDate", [](S s) { return std::to_string(s.view().latestAvailableDate); }},
      {"latestDateIndex", [](S s) { return std::to_string(s.view().latestDateIndex); }},
      {"latestOpenLabel", [](S s) { return latestOpenLabel(s.view()); }},
      {"latestOpenValue", [](S s) { return latestOpenValue(s.view(), s.clock()); }},
      {"latestScore", [](S s) { return std::to_string(s.view().latestScore); }},
      {"latestScoreDate", [](S s) { return std::to_string(s.view().latestScoreDate); }},
      {"latestTenScores", [](S s) { return joined(s.view().latestTenScores); }},
      {"latestUnfinishedDate", [](S s) { return std::to_string(s.view().latestUnfinishedDate); }},
      {"latestWinDate", [](S s) { return std::to_string(s.view().latestWinDate); }},
      {"maxStreakEnd", [](S s) { return std::to_string(s.view().maxStreakEnd); }},
      {"maxStreakStart", [](S s) { return std::to_string(s.view().maxStreakStart); }},
      {"minimumDayIndex", [](S s) { return std::to_string(s.view().minimumDayIndex); }},
      {"numberOfAvailableHints", [](S s) { return std::to_string(s.view().numberOfAvailableHints); }},
      {"numberOfHints", [](S s) { return std::to_string(s.view().numberOfHints); }},
      {"numCellEntries", [](S s) { return std::to_string(s.view().numCellEntries); }},
      {"scoreInt", [](S s) { return joined(s.view().scoreInt); }},
      {"scoreLine", [](S s) { return scoreLine(s.view()); }},
      {"scoreMark", [](S s) { return std::string(scoreMark(s.view()).symbol); }},
      {"shownDate", [](S s) { return shownDateText(s.view(), s.clock()); }},
      {"showAlert4", [](S s) { return flag(s.view().showAlert4); }},
      {"showHintDefinition", [](S s) { return flag(s.view().showHintDefinition); }},
      {"showKeypad", [](S s) { return flag(s.view().showKeypad); }},
      {"singleHint", [](S s) { return digits(s.view().singleHint); }},
      {"smartModeCorrect", [](S s) { return digits(s.view().smartModeCorrect); }},
      {"smartModeError", [](S s) { return digits(s.view().smartModeError); }},
      {"thankYou", [](S s) { return s.view().thankYou; }},
      {"usedHints", [](S s) { return digits(s.view().usedHints); }},
      {"validGuessError", [](S s) { return digits(s.view().validGuessError); }},
  };
  return table;
}

}  // namespace

std::string sessionBoard(const ContentView& view) {
  std::string text;
  for (int row = 0; row < view.gameRows; ++row) {
    std::string letters, colors;
    for (int column = 0; column < view.gameLetters; ++column) {
      const int cell = row * view.gameLetters + column;
      if (cell >= kMaximumCells) break;
      const std::string& letter = view.cellLetter[cell];
      letters += letter == kEmptyCell || letter == " " ? "." : letter;
      colors += tileColorLetter(view.cellBackground[cell]);
    }
    text += letters + " " + colors + "\n";
  }
  return text + "activeRow=" + std::to_string(view.activeRow) + " showKeypad=" + flag(view.showKeypad);
}

std::optional<std::string> sessionState(const Session& session, const std::string& name) {
  const auto found = fields().find(name);
  if (found == fields().end()) return std::nullopt;
  return found->second(session);
}

}  // namespace tessarine::cli
