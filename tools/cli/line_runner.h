// The loop shared by the runners that read one command a line from standard input.
#pragma once

#include <iostream>
#include <string>

#include "catalogue/fatal_error.h"
#include "cli/command.h"

namespace tessarine::cli {

// A runner command that cannot run; the loop prints "error: " and the message and reads on.
struct CommandError {
  std::string message;
};

// Builds a `Runner` from `args` and hands it each line of standard input. A fatal error of the core
// ends the run with "Fatal error: " and exit code 1. Each answer is flushed before the next line is
// read, so a driver at the other end of a pipe can wait for it.
template <typename Runner>
int runLines(const Args& args) {
  try {
    Runner runner(args);
    std::string line;
    while (std::getline(std::cin, line)) {
      try {
        runner.execute(line);
      } catch (const CommandError& error) {
        std::cout << "error: " << error.message << "\n";
      }
      std::cout.flush();
    }
  } catch (const FatalError& error) {
    std::cout << "Fatal error: " << error.what() << "\n";
    return 1;
  }
  return 0;
}

}  // namespace tessarine::cli
