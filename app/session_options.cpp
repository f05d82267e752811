#include "session_options.h"

void applyOptions(tessarine::Session& session, const tessarine::Options& options) {
  session.applyOptions(options);
}

void applyGameType(tessarine::Session& session, const std::string& gameType) {
  tessarine::Options options = session.options();
  options.gameType = gameType;
  applyOptions(session, options);
}
