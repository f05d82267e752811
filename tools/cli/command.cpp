#include "cli/command.h"

#include <charconv>
#include <ctime>
#include <filesystem>

#include "catalogue/calendar.h"

namespace tessarine::cli {
namespace {

// The CLI's "now": the system clock read in the local time zone. The core never reads it itself.
class SystemClock : public Clock {
 public:
  LocalDateTime now() const override {
    const std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
  }
};

// An installed CLI reads the lists installed beside it; one run from the build tree reads the source's.
std::string defaultResources() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) {
    const auto installed = self.parent_path() / TESSARINE_LISTS_FROM_BINDIR;
    if (std::filesystem::is_directory(installed, error)) return installed.lexically_normal().string();
  }
  return TESSARINE_RESOURCES_DIR;
}

}  // namespace

std::optional<std::string> Args::option(std::string_view name) const {
  for (const auto& [key, value] : options_) {
    if (key == name) return value;
  }
  return std::nullopt;
}

std::vector<Command>& commands() {
  static std::vector<Command> registry;
  return registry;
}

std::unique_ptr<Clock> clockFor(const Args& args) {
  const auto today = args.option("today");
  if (!today) return std::make_unique<SystemClock>();
  const auto date = parseIsoDate(*today);
  if (!date) throw UsageError{"--today takes a date as YYYY-MM-DD, not '" + *today + "'"};
  return std::make_unique<FixedClock>(LocalDateTime{date->year, date->month, date->day, 12, 0, 0});
}

std::string resourcesFolder(const Args& args) {
  return args.option("resources").value_or(defaultResources());
}

std::unique_ptr<ListSource> listSourceFor(const Args& args) {
  return std::make_unique<DirectoryListSource>(resourcesFolder(args));
}

int parseInt(std::string_view text, std::string_view what) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
    throw UsageError{std::string(what) + " must be a whole number, not '" + std::string(text) + "'"};
  }
  return value;
}

}  // namespace tessarine::cli
