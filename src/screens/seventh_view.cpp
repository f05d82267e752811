#include "screens/seventh_view.h"

#include <algorithm>

#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

// Each option's Changed flag and first value, in the order closing compares them.
struct Tracker {
  bool Options::*field;
  bool SeventhView::*changed;
  bool SeventhView::*old;
};

constexpr std::array<Tracker, 8> kTrackers = {{
    {&Options::smartMode, &SeventhView::smartModeChanged, &SeventhView::oldSmartMode},
    {&Options::prepopulate, &SeventhView::prepopulateChanged, &SeventhView::oldPrepopulate},
    {&Options::EnglishWords, &SeventhView::EnglishWordChanged, &SeventhView::oldEnglishWords},
    {&Options::EnglishTranslation, &SeventhView::EnglishTranslationChanged,
     &SeventhView::oldEnglishTranslation},
    {&Options::showDefinitions, &SeventhView::showDefinitionsChanged, &SeventhView::oldShowDefinitions},
    {&Options::wantHints, &SeventhView::wantHintsChanged, &SeventhView::oldWantHints},
    {&Options::showStarStatus, &SeventhView::showStarStatusChanged, &SeventhView::oldShowStarStatus},
    {&Options::useQWERTY, &SeventhView::useQWERTYChanged, &SeventhView::oldUseQWERTY},
}};

bool isEnglishWordType(std::string_view gameType) {
  const GameTypeInfo* info = findGameType(gameType);
  return info != nullptr && (info->kind == GameKind::englishWords || info->kind == GameKind::geniusWords);
}

bool isSpanishWordType(std::string_view gameType) {
  const GameTypeInfo* info = findGameType(gameType);
  return info != nullptr && info->kind == GameKind::spanishWords;
}

}  // namespace

SeventhView openSeventhView(const Options& options) {
  SeventhView view;
  view.bindings = options;
  const GameTypeInfo* info = findGameType(options.gameType);
  if (info != nullptr) view.typeOfGame = std::string(info->typeOfGame);
  return view;
}

void selectGameType(SeventhView& view, std::string_view gameType) {
  if (!view.gameTypeChanged) {
    view.gameTypeChanged = true;
    view.oldGameType = view.bindings.gameType;
  }
  view.bindings.gameType = std::string(gameType);
  if (const GameTypeInfo* info = findGameType(gameType)) view.typeOfGame = std::string(info->typeOfGame);
}

void setOption(SeventhView& view, bool Options::*field, bool value) {
  const auto tracker =
      std::find_if(kTrackers.begin(), kTrackers.end(), [&](const Tracker& t) { return t.field == field; });
  if (tracker == kTrackers.end()) return;
  if (!(view.*tracker->changed)) {
    view.*tracker->changed = true;
    view.*tracker->old = view.bindings.*field;
  }
  view.bindings.*field = value;
}

std::string_view wordGroupType(const SeventhView& view) {
  if (view.bindings.EnglishWords) return "A";
  for (std::size_t i = 0; i + 1 < kSpanishWordTypes.size(); ++i) {
    if (view.validSpanishLWordOption[i]) return kSpanishWordTypes[i];
  }
  return kSpanishWordTypes.back();
}

std::string_view spanishTypeFor(const SeventhView& view, std::string_view gameType) {
  const GameTypeInfo* info = findGameType(gameType);
  const int sameLength = info != nullptr ? info->tiles - 3 : -1;
  if (sameLength >= 0 && sameLength < 6 && view.validSpanishLWordOption[static_cast<std::size_t>(sameLength)])
    return kSpanishWordTypes[static_cast<std::size_t>(sameLength)];
  for (std::size_t i = kSpanishWordTypes.size(); i-- > 0;) {
    if (view.validSpanishLWordOption[i]) return kSpanishWordTypes[i];
  }
  return kSpanishWordTypes.back();
}

void chooseEspanol(SeventhView& view) {
  if (view.bindings.EnglishWords) setOption(view, &Options::EnglishWords, false);
  // The interface stays English until the player turns the translation off himself.
  if (!view.bindings.EnglishTranslation) setOption(view, &Options::EnglishTranslation, true);
  if (isEnglishWordType(view.bindings.gameType))
    selectGameType(view, spanishTypeFor(view, view.bindings.gameType));
}

void chooseEnglish(SeventhView& view) {
  if (!view.bindings.EnglishWords) setOption(view, &Options::EnglishWords, true);
  if (!view.bindings.EnglishTranslation) setOption(view, &Options::EnglishTranslation, true);
  // Whatever the Spanish length was, the player lands on the three-letter game.
  if (isSpanishWordType(view.bindings.gameType)) selectGameType(view, "A");
}

std::optional<Options> closeSeventhView(SeventhView& view) {
  if (view.gameTypeChanged && view.oldGameType != view.bindings.gameType) view.updateSettings = true;
  for (const Tracker& tracker : kTrackers) {
    if (view.*tracker.changed && view.*tracker.old != view.bindings.*tracker.field)
      view.updateSettings = true;
  }
  if (!view.updateSettings) return std::nullopt;
  return view.bindings;
}

std::string_view seventhViewTitle(bool EnglishTranslation) {
  return EnglishTranslation ? "Game Types & Options" : "Tipos de juegos y opciones";
}

std::string_view challengeHeading(bool EnglishTranslation) {
  return EnglishTranslation ? "Tessarine Challenge" : "Tessarina Desafío";
}

std::string_view colourBlindLabel(bool EnglishTranslation) {
  return EnglishTranslation ? "Color-Blind Patterns" : "Patrones para daltónicos";
}

std::vector<OptionRow> optionRows(const SeventhView& view) {
  const bool english = view.bindings.EnglishTranslation;
  std::vector<OptionRow> rows;
  for (const OptionInfo& option : optionTable()) {
    if (option.english.empty()) continue;  // the language buttons stand for `EnglishWords`
    const bool on = view.bindings.*option.field;
    rows.push_back({option.name, english ? option.english : option.spanish, option.field, on,
                    on ? "square.fill" : "square"});
  }
  rows.push_back({"playChallenge", english ? "Play Challenge" : "Reto de juego", nullptr, false, "square"});
  return rows;
}

}  // namespace tessarine
