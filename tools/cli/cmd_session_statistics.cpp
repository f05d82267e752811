#include "cli/cmd_session_statistics.h"

#include <cmath>
#include <map>
#include <ostream>
#include <sstream>

#include "cli/cmd_session_view.h"
#include "statistics/sixth_view.h"
#include "statistics/statistics_share.h"

namespace tessarine::cli {
namespace {

// What a share prints: the text exactly, then a line that marks where it ends.
void printShared(std::ostream& out, const std::string& text) {
  out << text << "\n~~~\n";
}

// The statistics screen opens on a fresh refresh, as the app's sheet does.
SecondView openSecondView(Session& session) {
  session.openStatistics();
  return session.secondView();
}

void printStatistics(const SecondView& view, std::ostream& out) {
  out << view.title() << "\n";
  if (!view.thankYouLine().empty()) out << view.thankYouLine() << "\n";
  out << view.latestScoreTitle() << "\n" << view.latestScore << "\n";
  out << view.unfinishedTitle << "\n" << view.unfinishedDate << "\n";
  for (const FigureLine& line : view.figures())
    out << line.label << line.value << "\n";
}

void printDistribution(SecondView second, std::ostream& out) {
  second.openDistribution();
  SixthView view = makeSixthView(second);
  view.appear();
  for (int bar = 0; bar < view.shownBars(); ++bar)
    out << view.barLabel(bar) << " " << std::lround(view.rawLength[bar]) << " "
        << tileColorName(view.cellBackground[bar]) << " " << view.scoreInt[bar] << "\n";
}

void highlight(Session& session, const std::string& argument) {
  std::istringstream words(argument);
  int row = -1, column = -1;
  if (!(words >> row >> column)) throw CommandError{"usage: highlight ROW COLUMN"};
  const ContentView& view = session.view();
  if (view.showKeypad) throw CommandError{"the game is not over"};
  if (row < 0 || row >= view.gameRows || column < 0 || column >= view.gameLetters ||
      !session.toggleHighlight(cellIndex(view, row, column)))
    throw CommandError{"no tile at " + argument};
}

}  // namespace

FifthView& StatisticsCommands::datesAndScores(Session& session, bool afresh) {
  if (afresh || !fifth_) {
    SecondView second = openSecondView(session);
    if (!second.openList()) throw CommandError{"the list button is off"};
    fifth_ = makeFifthView(second);
  }
  return *fifth_;
}

void StatisticsCommands::sort(Session& session, const std::string& argument, bool afterSort) {
  static const std::map<std::string, SortChoice, std::less<>> choices = {
      {"date-ascending", SortChoice::dateAscending},
      {"date-descending", SortChoice::dateDescending},
      {"score-ascending", SortChoice::scoreAscending},
      {"score-descending", SortChoice::scoreDescending}};
  const auto choice = choices.find(argument);
  if (choice == choices.end())
    throw CommandError{"usage: sort date-ascending|date-descending|score-ascending|score-descending"};
  FifthView& view = datesAndScores(session, !afterSort);
  view.openSortMenu();
  view.pressSort(choice->second);
}

bool StatisticsCommands::execute(Session& session, const std::string& verb, const std::string& argument,
                                 std::ostream& out) {
  const bool afterSort = previousWasSort_;
  previousWasSort_ = false;
  const bool aboutTheList = verb == "sort" || verb == "list" || (verb == "share" && argument == "list");
  if (!aboutTheList) fifth_.reset();

  if (verb == "sort") {
    sort(session, argument, afterSort);
    previousWasSort_ = true;
  } else if (verb == "list") {
    for (const std::string& line : datesAndScores(session, false).lines())
      out << line << "\n";
  } else if (verb == "statistics") {
    printStatistics(openSecondView(session), out);
  } else if (verb == "distribution") {
    printDistribution(openSecondView(session), out);
  } else if (verb == "highlight") {
    highlight(session, argument);
  } else if (verb == "echo") {
    out << argument << "\n";
  } else if (verb == "share" && argument == "game") {
    const auto text = session.gameShareText();
    if (!text) throw CommandError{"the game is not over"};
    printShared(out, *text);
  } else if (verb == "share" && argument == "stats") {
    SecondView view = openSecondView(session);
    view.toggleShareSheet();
    printShared(out, statisticsShareText(view));
  } else if (verb == "share" && argument == "list") {
    FifthView& view = datesAndScores(session, false);
    view.pressShare();
    const auto text = listShareText(view);
    if (!text) throw CommandError{"the list is empty: nothing to share"};
    printShared(out, *text);
  } else if (verb == "share") {
    throw CommandError{"usage: share game|stats|list"};
  } else {
    return false;
  }
  return true;
}

}  // namespace tessarine::cli
