#include "session_options.h"

void applyGameType(tessarine::Session& session, const std::string& gameType) {
  session.mutableView().gameType = gameType;
  session.mutableView().updateSettings = true;
  session.applyOptions();
}
