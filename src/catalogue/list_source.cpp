#include "catalogue/list_source.h"

#include <fstream>
#include <sstream>

namespace tessarine {

std::optional<std::string> DirectoryListSource::read(const std::string& name) const {
  std::ifstream in(directory_ / (name + ".txt"), std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  if (in.bad()) return std::nullopt;
  return text.str();
}

}  // namespace tessarine
