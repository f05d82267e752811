#pragma once

#include <QString>

#include "catalogue/list_source.h"

// The list files compiled into the binary as Qt resources (":/lists/<name>.txt").
class QtResourceListSource : public tessarine::ListSource {
 public:
  explicit QtResourceListSource(QString prefix = QStringLiteral(":/lists/")) : prefix_(std::move(prefix)) {}
  std::optional<std::string> read(const std::string& name) const override;

 private:
  QString prefix_;
};
