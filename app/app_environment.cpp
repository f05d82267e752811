#include "app_environment.h"

#include <QDir>
#include <QStandardPaths>

#include "system_clock.h"

AppEnvironment readAppEnvironment() {
  AppEnvironment environment;
  QString folder = qEnvironmentVariable("TESSARINE_DATA_DIR");
  if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(folder);
  environment.dataDirectory = std::filesystem::path(folder.toStdString());

  const QString today = qEnvironmentVariable("TESSARINE_TODAY");
  if (today.isEmpty()) {
    environment.clock = std::make_unique<SystemClock>();
  } else if (const auto noon = pinnedNoon(today.toStdString())) {
    environment.clock = std::make_unique<tessarine::FixedClock>(*noon);
  } else {
    environment.clock = std::make_unique<SystemClock>();
    environment.problem = QStringLiteral("TESSARINE_TODAY must be a date as YYYY-MM-DD, not ") + today;
  }
  return environment;
}
