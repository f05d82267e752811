// The help sheets as text: the how-to-play sheet and the challenge's rules, one text a line.
#include <iostream>

#include "cli/command.h"
#include "screens/fourth_view.h"
#include "screens/third_view.h"

namespace tessarine::cli {
namespace {

// Any value is taken, so that the general texts of a type outside the table can be read too.
const std::string& typeArgument(const Args& args) {
  if (args.positional().size() != 1) throw UsageError{"give one game type"};
  return args.positional().front();
}

int help(const Args& args) {
  const ThirdView view = thirdView(typeArgument(args), !args.flag("spanish"), !args.flag("spanish-words"));
  std::cout << view.title << "\n";
  for (const SheetSection& section : view.sections) {
    if (!section.heading.empty()) std::cout << section.heading << "\n";
    for (const SheetLine& line : section.lines)
      std::cout << line.text << "\n";
  }
  return 0;
}

int rules(const Args& args) {
  const FourthView view = fourthView(typeArgument(args), !args.flag("spanish"));
  std::cout << view.title << "\n";
  for (const std::string& rule : view.rules)
    std::cout << rule << "\n";
  return 0;
}

const Registrar helpCommand({"help", "help TYPE [--spanish] [--spanish-words]", help});
const Registrar rulesCommand({"rules", "rules TYPE [--spanish]", rules});

}  // namespace
}  // namespace tessarine::cli
