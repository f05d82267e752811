#pragma once

#include <QString>
#include <memory>
#include <thread>

#include "app_environment.h"
#include "catalogue/lists.h"
#include "device_random.h"
#include "qt_resource_list_source.h"
#include "session/session.h"

class SessionHost;

// Builds the core and launches it (the stores opened, padded and read, the first refresh) on a
// thread of its own, so that this work overlaps Qt's own start: the window, the platform and the
// screens' types. Nothing touches the core from the main thread until handTo() has joined.
class CoreStart {
 public:
  explicit CoreStart(AppEnvironment environment);
  ~CoreStart();
  CoreStart(const CoreStart&) = delete;
  CoreStart& operator=(const CoreStart&) = delete;

  // Waits for the core and gives it to the host, or puts the host in the fatal state with the
  // reason the core could not start.
  void handTo(SessionHost& host);

 private:
  void build();

  AppEnvironment environment_;
  QtResourceListSource listSource_;
  tessarine::Lists lists_{listSource_};
  DeviceRandom random_;
  std::unique_ptr<tessarine::Session> session_;
  QString failure_;
  std::thread thread_;
};
