#include "session_options.h"

void applyGameType(tessarine::Session& session, const std::string& gameType) {
  tessarine::Options options = session.options();
  options.gameType = gameType;
  session.applyOptions(options);
}
