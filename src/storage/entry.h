#pragma once

#include <cstdint>
#include <string>

namespace tessarine {

// One stored string record. `id` is the store's opaque handle, used only to update and delete.
struct Entry {
  std::int64_t id = 0;
  std::string text;
};

}  // namespace tessarine
