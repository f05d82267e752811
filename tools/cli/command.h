#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/clock.h"
#include "catalogue/lists.h"

namespace tessarine::cli {

// Parsed command line: positional words, and --flag / --flag VALUE options.
class Args {
 public:
  Args(std::vector<std::string> positional, std::vector<std::pair<std::string, std::string>> options)
      : positional_(std::move(positional)), options_(std::move(options)) {}
  const std::vector<std::string>& positional() const { return positional_; }
  std::optional<std::string> option(std::string_view name) const;
  bool flag(std::string_view name) const { return option(name).has_value(); }

 private:
  std::vector<std::string> positional_;
  std::vector<std::pair<std::string, std::string>> options_;
};

// Raised for a mistyped command line; main prints the message and the usage, and exits 2.
struct UsageError {
  std::string message;
};

struct Command {
  std::string name;
  std::string usage;
  std::function<int(const Args&)> run;
};

std::vector<Command>& commands();

struct Registrar {
  explicit Registrar(Command command) { commands().push_back(std::move(command)); }
};

// Shared pieces of the commands.
std::unique_ptr<Clock> clockFor(const Args& args);            // --today YYYY-MM-DD, else the system clock
std::unique_ptr<ListSource> listSourceFor(const Args& args);  // --resources DIR
std::string resourcesFolder(const Args& args);                // --resources DIR, else the default
int parseInt(std::string_view text, std::string_view what);

}  // namespace tessarine::cli
