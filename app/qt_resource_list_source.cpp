#include "qt_resource_list_source.h"

#include <QFile>

std::optional<std::string> QtResourceListSource::read(const std::string& name) const {
  QFile file(prefix_ + QString::fromStdString(name) + QStringLiteral(".txt"));
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.readAll();
  return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}
