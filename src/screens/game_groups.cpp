#include "screens/game_groups.h"

#include <array>

#include "catalogue/catalogue.h"
#include "screens/sheet_text.h"

namespace tessarine {
namespace {

constexpr std::array<Bilingual, 6> kWordLengths = {{
    {"3 Letter Words", "Palabras de 3 Letras"},
    {"4 Letter Words", "Palabras de 4 Letras"},
    {"5 Letter Words", "Palabras de 5 Letras"},
    {"6 Letter Words", "Palabras de 6 Letras"},
    {"7 Letter Words", "Palabras de 7 Letras"},
    {"8 Letter Words", "Palabras de 8 Letras"},
}};
constexpr std::array<Bilingual, 3> kDigits = {{
    {"3 Digit Number", "Número de 3 dígitos"},
    {"4 Digit Number", "Número de 4 dígitos"},
    {"5 Digit Number", "Número de 5 dígitos"},
}};
constexpr std::array<Bilingual, 3> kTiles = {{
    {"6 Tile Game", "Juego de 6 fichas"},
    {"7 Tile Game", "Juego de 7 fichas"},
    {"8 Tile Game", "Juego de 8 fichas"},
}};
constexpr Bilingual kAllNumbers = {"All Numbers", "Todos los números"};
constexpr Bilingual kPrimesOnly = {"Prime Numbers Only", "Solo números primos"};
constexpr Bilingual kAddSubtract = {"Addition and Subtraction Operators", "Adición y sustracción Operandos"};
constexpr Bilingual kMultiplyDivide = {"Multiplication and Division Operators",
                                       "Multiplicación y división Operandos"};

std::string typeOf(GameKind kind, int tiles, OperatorSet operators = OperatorSet::none) {
  for (const GameTypeInfo& info : gameCatalogue()) {
    if (info.kind == kind && info.tiles == tiles && info.operators == operators)
      return std::string(info.gameType);
  }
  return {};
}

bool hasAddSubtract(OperatorSet set) {
  return set == OperatorSet::all || set == OperatorSet::addSubtract;
}
bool hasMultiplyDivide(OperatorSet set) {
  return set == OperatorSet::all || set == OperatorSet::multiplyDivide;
}

OperatorSet operatorSet(bool addSubtract, bool multiplyDivide) {
  if (addSubtract && multiplyDivide) return OperatorSet::all;
  return addSubtract ? OperatorSet::addSubtract : OperatorSet::multiplyDivide;
}

class GroupBuilder {
 public:
  explicit GroupBuilder(const SeventhView& view)
      : view_(view),
        english_(view.bindings.EnglishTranslation),
        info_(findGameType(view.bindings.gameType)) {}

  std::vector<GameGroup> build() const { return {words(), genius(), numbers(), equations()}; }

 private:
  bool is(GameKind kind) const { return info_ != nullptr && info_->kind == kind; }
  bool isNumber() const { return is(GameKind::primeNumbers) || is(GameKind::allNumbers); }

  GroupItem type(const Bilingual& label, std::string gameType) const {
    const bool selected = gameType == view_.bindings.gameType;
    return {pick(label, english_), ItemAction::selectType, std::move(gameType), selected};
  }

  GameGroup words() const {
    const bool englishWords = view_.bindings.EnglishWords;
    GameGroup group{pick({"Word Guess Game", "Juego de adivinar palabras"}, english_),
                    std::string(wordGroupType(view_)),
                    is(GameKind::englishWords) || is(GameKind::spanishWords),
                    {}};
    // The language buttons are named in their own language whatever the interface is.
    group.items.push_back({"English", ItemAction::english, "", englishWords});
    group.items.push_back({"Español", ItemAction::espanol, "", !englishWords});
    for (std::size_t i = 0; i < kWordLengths.size(); ++i) {
      const int tiles = static_cast<int>(i) + 3;
      if (englishWords) {
        group.items.push_back(type(kWordLengths[i], typeOf(GameKind::englishWords, tiles)));
      } else if (view_.validSpanishLWordOption[i]) {
        group.items.push_back(type(kWordLengths[i], std::string(kSpanishWordTypes[i])));
      }
    }
    return group;
  }

  GameGroup genius() const {
    GameGroup group{pick({"Genius Word Game", "Juego de palabras genio"}, english_),
                    typeOf(GameKind::geniusWords, 4),
                    is(GameKind::geniusWords),
                    {}};
    group.items.push_back(type(kWordLengths[1], typeOf(GameKind::geniusWords, 4)));
    group.items.push_back(type(kWordLengths[2], typeOf(GameKind::geniusWords, 5)));
    return group;
  }

  // Digits keep the kind of number and the kind keeps the digits; from elsewhere they start on
  // all numbers of three digits.
  GameGroup numbers() const {
    const GameKind kind = isNumber() ? info_->kind : GameKind::allNumbers;
    const int tiles = isNumber() ? info_->tiles : 3;
    GameGroup group{pick({"Number Guess Game", "Juego de adivinanzas de números"}, english_),
                    typeOf(GameKind::primeNumbers, 3),
                    isNumber(),
                    {}};
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
      GroupItem item = type(kDigits[i], typeOf(kind, static_cast<int>(i) + 3));
      item.selected = isNumber() && info_->tiles == static_cast<int>(i) + 3;
      group.items.push_back(item);
    }
    GroupItem all = type(kAllNumbers, typeOf(GameKind::allNumbers, tiles));
    all.selected = is(GameKind::allNumbers);
    GroupItem primes = type(kPrimesOnly, typeOf(GameKind::primeNumbers, tiles));
    primes.selected = is(GameKind::primeNumbers);
    group.items.push_back(all);
    group.items.push_back(primes);
    return group;
  }

  // Tiles keep the operators. Each switch turns its pair on or off; the last pair on stays on.
  GameGroup equations() const {
    const bool equation = is(GameKind::equations);
    const OperatorSet set = equation ? info_->operators : OperatorSet::all;
    const int tiles = equation ? info_->tiles : 6;
    GameGroup group{pick({"Equation Guess Game", "Juego de adivinanzas de ecuaciones"}, english_),
                    typeOf(GameKind::equations, 6, OperatorSet::all),
                    equation,
                    {}};
    for (std::size_t i = 0; i < kTiles.size(); ++i) {
      GroupItem item = type(kTiles[i], typeOf(GameKind::equations, static_cast<int>(i) + 6, set));
      item.selected = equation && info_->tiles == static_cast<int>(i) + 6;
      group.items.push_back(item);
    }
    const bool as = equation && hasAddSubtract(set);
    const bool md = equation && hasMultiplyDivide(set);
    const auto toggled = [&](bool flipAddSubtract) {
      if (!equation) return operatorSet(flipAddSubtract, !flipAddSubtract);
      const bool newAs = flipAddSubtract ? !as : as;
      const bool newMd = flipAddSubtract ? md : !md;
      return newAs || newMd ? operatorSet(newAs, newMd) : set;
    };
    GroupItem addSubtract = type(kAddSubtract, typeOf(GameKind::equations, tiles, toggled(true)));
    addSubtract.selected = as;
    GroupItem multiplyDivide = type(kMultiplyDivide, typeOf(GameKind::equations, tiles, toggled(false)));
    multiplyDivide.selected = md;
    group.items.push_back(addSubtract);
    group.items.push_back(multiplyDivide);
    return group;
  }

  const SeventhView& view_;
  bool english_;
  const GameTypeInfo* info_;
};

}  // namespace

std::vector<GameGroup> gameGroups(const SeventhView& view) {
  return GroupBuilder(view).build();
}

void chooseGroup(SeventhView& view, const GameGroup& group) {
  selectGameType(view, group.gameType);
}

void chooseItem(SeventhView& view, const GroupItem& item) {
  switch (item.action) {
    case ItemAction::english:
      return chooseEnglish(view);
    case ItemAction::espanol:
      return chooseEspanol(view);
    case ItemAction::selectType:
      break;
  }
  selectGameType(view, item.gameType);
}

}  // namespace tessarine
