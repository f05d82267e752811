// With TESSARINE_START_STEPS set, the app prints the wall-clock milliseconds at each step of its
// start, so that scripts/measure-start.sh --steps can say where the time to the first frame goes.
#pragma once

#include <QDateTime>
#include <QtGlobal>
#include <cstdio>

inline void markStartStep(const char* step) {
  static const bool wanted = qEnvironmentVariableIsSet("TESSARINE_START_STEPS");
  if (!wanted) return;
  std::printf("start-step %s %lld\n", step, QDateTime::currentMSecsSinceEpoch());
  std::fflush(stdout);
}
