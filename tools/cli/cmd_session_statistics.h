// The session runner's statistics screens and share sheets: `statistics`, `sort`, `list`,
// `distribution`, `share game|stats|list`, `highlight ROW COLUMN` and `echo TEXT`.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "session/session.h"
#include "statistics/fifth_view.h"

namespace tessarine::cli {

class StatisticsCommands {
 public:
  // Runs the command when it is one of these and returns true; false leaves it to the runner.
  // Every command closes the dates and scores screen except `sort`, `list` and `share list`.
  bool execute(Session& session, const std::string& verb, const std::string& argument, std::ostream& out);

 private:
  FifthView& datesAndScores(Session& session, bool afresh);
  // A run of sorts presses the buttons of one screen; the first of a run opens it afresh.
  void sort(Session& session, const std::string& argument, bool afterSort);

  std::optional<FifthView> fifth_;
  bool previousWasSort_ = false;
};

}  // namespace tessarine::cli
