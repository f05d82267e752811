#include "cli/cmd_session_sheet.h"

#include <algorithm>
#include <iostream>
#include <sstream>

#include "catalogue/catalogue.h"
#include "screens/game_groups.h"

namespace tessarine::cli {
namespace {

// A Spanish length without a word list is not on the sheet, so it cannot be chosen there.
bool offered(const SeventhView& view, const std::string& gameType) {
  const auto spanish = std::find(kSpanishWordTypes.begin(), kSpanishWordTypes.end(), gameType);
  if (spanish == kSpanishWordTypes.end()) return findGameType(gameType) != nullptr;
  return view.validSpanishLWordOption[static_cast<std::size_t>(spanish - kSpanishWordTypes.begin())];
}

void printGroups(const SeventhView& view) {
  for (const GameGroup& group : gameGroups(view)) {
    std::cout << group.label << (group.selected ? " *" : "") << "\n";
    for (const GroupItem& item : group.items)
      std::cout << "  " << item.label << (item.selected ? " *" : "") << "\n";
  }
}

}  // namespace

SeventhView& SheetCommands::open() {
  if (!sheet_) throw CommandError{"the sheet is not open"};
  return *sheet_;
}

void SheetCommands::run(Session& session, const std::string& argument) {
  std::istringstream words(argument);
  std::string verb, first, second;
  words >> verb >> first >> second;
  if (verb == "open") {
    sheet_ = openSeventhView(session.options());
  } else if (verb == "type") {
    if (!offered(open(), first)) throw CommandError{"game type '" + first + "' is not offered"};
    selectGameType(open(), first);
  } else if (verb == "option") {
    const OptionInfo* option = findOption(first);
    if (option == nullptr || option->english.empty() || (second != "Y" && second != "N"))
      throw CommandError{"usage: sheet option NAME Y|N"};
    setOption(open(), option->field, second == "Y");
  } else if (verb == "words" && (first == "english" || first == "spanish")) {
    first == "english" ? chooseEnglish(open()) : chooseEspanol(open());
  } else if (verb == "groups") {
    printGroups(open());
  } else if (verb == "close") {
    const std::optional<Options> changed = closeSeventhView(open());
    std::cout << "updateSettings=" << (changed ? "true" : "false") << "\n";
    sheet_.reset();
    if (changed) session.applyOptions(*changed);
  } else {
    throw CommandError{"usage: sheet open|type T|option NAME Y|N|words english|spanish|groups|close"};
  }
}

}  // namespace tessarine::cli
