#include "catalogue/list_source.h"

#include <fstream>
#include <sstream>

namespace tessarine {

std::optional<std::string> DirectoryListSource::read(const std::string& name) const {
  const std::filesystem::path file = directory_ / (name + ".txt");
  // A folder opens as a stream that reads as empty: it is as missing as no file at all.
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return std::nullopt;
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  if (in.bad()) return std::nullopt;
  return text.str();
}

}  // namespace tessarine
