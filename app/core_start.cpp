#include "core_start.h"

#include <exception>

#include "session_host.h"

CoreStart::CoreStart(AppEnvironment environment)
    : environment_(std::move(environment)), thread_([this] { build(); }) {}

CoreStart::~CoreStart() {
  if (thread_.joinable()) thread_.join();
}

void CoreStart::build() {
  if (!environment_.problem.isEmpty()) {
    failure_ = environment_.problem;
    return;
  }
  try {
    session_ = std::make_unique<tessarine::Session>(environment_.dataDirectory, lists_, *environment_.clock,
                                                    random_);
    session_->launch();
  } catch (const std::exception& error) {
    // The fatal stops (a missing list, a store that cannot be opened) end up on the fatal screen.
    session_.reset();
    failure_ = QString::fromStdString(error.what());
  }
}

void CoreStart::handTo(SessionHost& host) {
  if (thread_.joinable()) thread_.join();
  if (session_ != nullptr) {
    host.attach(session_.get());
  } else {
    host.fail(failure_);
  }
}
