#pragma once

#include <QString>
#include <filesystem>
#include <memory>

#include "catalogue/clock.h"

// What the app takes from its surroundings, with the overrides that tests and screenshots use:
// TESSARINE_DATA_DIR (the stores' folder) and TESSARINE_TODAY=YYYY-MM-DD (a pinned day).
struct AppEnvironment {
  std::filesystem::path dataDirectory;
  std::unique_ptr<tessarine::Clock> clock;
  QString problem;  // a malformed override, reported as the fatal stop
};

// Reads the overrides; call after QGuiApplication has its names so the data folder is the app's own.
AppEnvironment readAppEnvironment();
