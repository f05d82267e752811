#include <algorithm>
#include <cstring>
#include <iostream>

#include "catalogue/fatal_error.h"
#include "cli/command.h"

using namespace tessarine::cli;

namespace {

void printUsage(std::ostream& out) {
  out << "usage: tessarine-cli COMMAND [ARGS]\n";
  auto sorted = commands();
  std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  for (const auto& command : sorted)
    out << "  " << command.usage << "\n";
}

// Options that take no value; every other --name takes the next word.
bool isSwitch(std::string_view name) {
  return name == "spanish" || name == "spanish-words" || name == "help";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || std::strcmp(argv[1], "--help") == 0) {
    printUsage(argc < 2 ? std::cerr : std::cout);
    return argc < 2 ? 2 : 0;
  }
  std::vector<std::string> positional;
  std::vector<std::pair<std::string, std::string>> options;
  bool optionsEnded = false;  // after "--" every word is positional, even one such as "--ABC"
  for (int i = 2; i < argc; ++i) {
    std::string word = argv[i];
    if (!optionsEnded && word == "--") {
      optionsEnded = true;
    } else if (!optionsEnded && word.rfind("--", 0) == 0 && word.size() > 2) {
      std::string name = word.substr(2);
      if (isSwitch(name)) {
        options.emplace_back(name, "");
      } else if (i + 1 < argc) {
        options.emplace_back(name, argv[++i]);
      } else {
        std::cerr << "tessarine-cli: --" << name << " needs a value\n";
        return 2;
      }
    } else {
      positional.push_back(std::move(word));
    }
  }
  const auto& all = commands();
  const auto command = std::find_if(all.begin(), all.end(), [&](const auto& c) { return c.name == argv[1]; });
  if (command == all.end()) {
    std::cerr << "tessarine-cli: unknown command '" << argv[1] << "'\n";
    printUsage(std::cerr);
    return 2;
  }
  try {
    return command->run(Args(std::move(positional), std::move(options)));
  } catch (const UsageError& error) {
    std::cerr << "tessarine-cli: " << error.message << "\nusage: tessarine-cli " << command->usage << "\n";
    return 2;
  } catch (const tessarine::FatalError& error) {
    std::cerr << "Fatal error: " << error.what() << "\n";
    return 1;
  }
}
