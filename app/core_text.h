#pragma once

#include <QString>
#include <string>
#include <string_view>

// The core's texts are UTF-8.
inline QString fromCore(std::string_view value) {
  return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}
