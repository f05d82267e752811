#pragma once

#include <QString>
#include <QStringList>
#include <iterator>
#include <string>
#include <string_view>

// The core's texts are UTF-8.
inline QString fromCore(std::string_view value) {
  return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

// Any range of the core's texts (vector, array, of string or string_view), as the list QML reads.
template <typename Texts>
QStringList fromCoreList(const Texts& texts) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(std::size(texts)));
  for (const auto& text : texts)
    list.append(fromCore(text));
  return list;
}
