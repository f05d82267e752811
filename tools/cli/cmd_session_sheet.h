// The options sheet inside the session runner: "sheet open", then its buttons, then "sheet close",
// which applies the choices to the session as the app does when anything really changed.
#pragma once

#include <optional>
#include <string>

#include "cli/cmd_session_view.h"
#include "screens/seventh_view.h"
#include "session/session.h"

namespace tessarine::cli {

class SheetCommands {
 public:
  // `argument` is what follows "sheet": open, type T, option NAME Y|N, words english|spanish,
  // groups, close.
  void run(Session& session, const std::string& argument);

 private:
  SeventhView& open();

  std::optional<SeventhView> sheet_;
};

}  // namespace tessarine::cli
