#include <iostream>

#include "catalogue/calendar.h"
#include "cli/command.h"

namespace tessarine::cli {
namespace {

int today(const Args& args) {
  if (!args.positional().empty()) throw UsageError{"today takes no positional argument"};
  std::cout << daysFromApril1st(*clockFor(args)) - 1 << "\n";
  return 0;
}

int date(const Args& args) {
  if (args.positional().size() != 1) throw UsageError{"date needs one OFFSET"};
  const int offset = parseInt(args.positional()[0], "OFFSET");
  std::cout << displayDateString(*clockFor(args), offset, false, !args.flag("spanish")) << "\n";
  return 0;
}

const Registrar todayCommand({"today", "today [--today YYYY-MM-DD]", today});
const Registrar dateCommand({"date", "date OFFSET [--today YYYY-MM-DD] [--spanish]", date});

}  // namespace
}  // namespace tessarine::cli
