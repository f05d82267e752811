#include <iostream>

#include "catalogue/lists.h"
#include "cli/command.h"

namespace tessarine::cli {
namespace {

// The answer of a day index as the game itself finds it: same loader, same modulus rule.
int answer(const Args& args) {
  if (args.positional().size() != 2) throw UsageError{"answer needs a TYPE and a DAY"};
  const int day = parseInt(args.positional()[1], "DAY");
  const auto source = listSourceFor(args);
  const Lists lists(*source);
  std::cout << lists.answer(args.positional()[0], day) << "\n";
  return 0;
}

const Registrar command({"answer", "answer TYPE DAY [--resources DIR]", answer});

}  // namespace
}  // namespace tessarine::cli
