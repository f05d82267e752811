// The example lines of the how-to-play sheet, each beside a row of tiles in its colour. The words,
// numbers and equations name different symbols on purpose, and so do the two languages.
#include <algorithm>
#include <array>

#include "screens/third_view_parts.h"

namespace tessarine::help {
namespace {

using enum TileColor;

struct Example {
  std::optional<TileColor> colour;
  FamilyTexts texts;
  std::string_view fallback;  // the general English form, where there is one
};

// clang-format off
const std::array<Example, 10> kColourHints = {{
    {green, {{"The letter C is in the correct spot and the mystery word has only one C.", "La letra G está en el lugar correcto y la palabra misteriosa tiene solo una G."}, {"The number 5 is in the correct spot and the mystery number has only one 5.", "El número 5 está en el lugar correcto y el número misterioso tiene solo un 5."}, {"The number 1 is in the correct spot and the mystery equation has only one 1.", "El número 1 está en el lugar correcto y la ecuación misteriosa tiene solo un 1."}},
     "The letter/number X in the correct/wrong spot and the mystery word/number has only one X."},
    {yellow, {{"The letter O is in the mystery word but in the wrong spot.", "La letra E está en la palabra misteriosa pero en el lugar equivocado."}, {"The number 4 is in the mystery number but in the wrong spot.", "El número 4 está en el número misterioso pero en el lugar equivocado."}, {"The number 4 is in the mystery equation but in the wrong spot.", "El número 4 está en la ecuación misteriosa pero en el lugar equivocado."}},
     "The letter/number X is in the word/number and in the correct/wrong spot."},
    {blue, {{"The letter P is in the correct spot and the mystery word has more than one P.", "La letra A está en el lugar correcto y la palabra misteriosa tiene más de una A."}, {"The number 1 is in the correct spot and the mystery number has more than one 1.", "El número 1 está en el lugar correcto y el número misterioso tiene más de un 1."}, {"The number 7 is in the correct spot and the mystery equation has more than one 7.", "El número 7 está en el lugar correcto y la ecuación misteriosa tiene más de un 7."}}, ""},
    {orange, {{"The letter D is in the wrong spot and the mystery word has less than two D's.", "La letra P está en el lugar equivocado y la palabra misteriosa tiene menos de dos P."}, {"The number 7 is in the wrong spot and the mystery number has less than two 7's.", "El número 7 está en el lugar equivocado y el número misterioso tiene menos de dos 7."}, {"The number 1 is in the wrong spot and the mystery equation has less than two 1's.", "El número 1 está en el lugar equivocado y la ecuación misteriosa tiene menos de dos 1."}}, ""},
    {gray, {{"The letter R is not in the mystery word in any spot.", "La letra N no está en la palabra misteriosa en ningún lugar."}, {"The number 3 is not in the mystery number in any spot.", "El número 3 no está en el número misterioso en ningún lugar."}, {"The operator + is not in the mystery equation in any spot.", "El operador + no está en la ecuación misteriosa en ningún lugar."}}, ""},
    {cyan, {{"The word QAZ is not a valid word.", "La palabra QAZ no es una palabra válida."}, {"The number 435 is not a prime number.", "El número 435 no es un número primo."}, {"The equation 7X6=41 is not a valid equation.", "La ecuación 7X6=41 no es una ecuación válida."}}, ""},
    {purple, {{"The word CAT was used previously.", "La palabra GATO se utilizó anteriormente."}, {"The number 823 was used previously.", "El número 823 se utilizó anteriormente."}, {"The equation 6X7=42 was used previously.", "La ecuación 6X7=42 se utilizó anteriormente."}}, ""},
    {{}, {{"The mystery word has exactly 2 L's.", "La palabra misteriosa tiene exactamente dos L."}, {"The mystery number has exactly two 3's.", "El número misterioso tiene exactamente dos 3."}, {"The mystery equation has exactly two 4's.", "La ecuación misteriosa tiene exactamente dos 4."}}, ""},
    {{}, {{"The mystery word has less than two L's.", "La palabra misteriosa tiene menos de dos L."}, {"The mystery number has less than two 3's.", "El número misterioso tiene menos de dos 3."}, {"The mystery equation has less than two 4's.", "La ecuación misteriosa tiene menos de dos 4."}}, ""},
    {{}, {{"The mystery word has more than two L's.", "La palabra misteriosa tiene más de dos L."}, {"The mystery number has more than two 3's.", "El número misterioso tiene más de dos 3."}, {"The mystery equation has more than two 4's.", "La ecuación misteriosa tiene más de dos 4."}}, ""},
}};

const std::array<Example, 6> kSmartModeErrors = {{
    {green, {{"The letter C is in the mystery word and in the correct spot, but on the next guess C was not used again in the correct spot.", "La letra G está en la palabra misteriosa y en el lugar correcto, pero en la siguiente suposición, G no se usó nuevamente en el lugar correcto."}, {"The number 5 is in the mystery number and in the correct spot, but on the next guess 5 was not used again in the correct spot.", "El número 5 está en el número misterioso y en el lugar correcto, pero en el siguiente intento 5 no se usó nuevamente en el lugar correcto."}, {"The number 1 is in the mystery equation and in the correct spot, but on the next guess 1 was not used again in the correct spot.", "El número 1 está en la ecuación misteriosa y en el lugar correcto, pero en la siguiente suposición, 1 no se usó nuevamente en el lugar correcto."}}, ""},
    {gray, {{"The letter A is not in the mystery word in any spot, but on the next guess A was used again.", "La letra O no está en la palabra misteriosa en ningún lugar, pero en la siguiente suposición O se usó nuevamente."}, {"The number 4 is not in the mystery number in any spot, but on the next guess 4 was used again.", "El número 4 no está en el número misterioso en ningún lugar, pero en la siguiente suposición 4 se usó nuevamente."}, {"The number 7 is not in the mystery equation in any spot, but on the next guess 7 was used again.", "El número 7 no está en la ecuación misteriosa en ningún lugar, pero en la siguiente suposición 7 se usó nuevamente."}}, ""},
    {yellow, {{"The letter T is in the mystery word but in the wrong spot, but on the next guess T was used again in the wrong spot.", "La letra O está en la palabra misteriosa pero en el lugar equivocado, pero en la siguiente suposición O se usó nuevamente en el lugar equivocado."}, {"The number 7 is in the mystery number but in the wrong spot, but on the next guess 7 was used again in the wrong spot.", "El número 7 está en el número misterioso pero en el lugar equivocado, pero en la siguiente suposición 7 se usó nuevamente en el lugar equivocado."}, {"The number 7 is in the mystery equation but in the wrong spot, but on the next guess 7 was used again in the wrong spot.", "El número 7 está en la ecuación misteriosa pero en el lugar equivocado, pero en la siguiente suposición 7 se usó nuevamente en el lugar equivocado."}}, ""},
    {yellow, {{"The letter T is in the mystery word but in the wrong spot, but on the next guess T was not used in any position. All the cells where the T could have been placed are given the color red.", "La letra T está en la palabra misteriosa pero en el lugar equivocado, pero en la siguiente suposición la T no se usó en ninguna posición. A todas las celdas donde se podría haber colocado la T se les da el color rojo."}, {"The number 7 is in the mystery number but in the wrong spot, but on the next guess 7 was not used in any position. All the cells where the 7 could have been placed are given the color red.", "El número 7 está en el número misterioso pero en el lugar equivocado, pero en la siguiente suposición el 7 no se usó en ninguna posición. A todas las celdas donde se podría haber colocado el 7 se les da el color rojo."}, {"The number 7 is in the mystery equation but in the wrong spot, but on the next guess 7 was not used in any position. All the cells where the 7 could have been placed are given the color red.", "El número 7 está en la ecuación misteriosa pero en el lugar equivocado, pero en la siguiente suposición el 7 no se usó en ninguna posición. A todas las celdas donde se podría haber colocado el 7 se les da el color rojo."}}, ""},
    {blue, {{"The letter D is in the mystery word and in the correct spot and the mystery word has more than one D, but on the next guess, D was still only used once.", "La letra D está en la palabra misteriosa y en el lugar correcto y la palabra misteriosa tiene más de una D, pero en la siguiente suposición, D solo se usó una vez."}, {"The number 7 is in the mystery number and in the correct spot and the mystery number has more than one 7, but on the next guess, 7 was still only used once.", "El número 7 está en el número misterioso y en el lugar correcto y el número misterioso tiene más de un 7, pero en la siguiente suposición, el 7 solo se usó una vez."}, {"The number 8 is in the mystery equation and in the correct spot and the mystery equation has more than one 8, but on the next guess, 8 was still only used once.", "El número 8 está en la ecuación misteriosa y en el lugar correcto y la ecuación misteriosa tiene más de un 8, pero en la siguiente suposición, el 8 solo se usó una vez."}}, ""},
    {orange, {{"The letter E is in the wrong spot and the mystery word has less than two E's, but on the next guess, E was still used twice.", "La letra E está en el lugar equivocado y la palabra misteriosa tiene menos de dos E, pero en la siguiente suposición, E todavía se usó dos veces."}, {"The number 1 is in the wrong spot and the mystery number has less than two 1's, but on the next guess, 1 was still used twice.", "El número 1 está en el lugar equivocado y el número misterioso tiene menos de dos unos, pero en la siguiente suposición, el 1 todavía se usó dos veces."}, {"The number 1 is in the wrong spot and the mystery equation has less than two 1's, but on the next guess, 1 was still used twice.", "El número 1 está en el lugar equivocado y la ecuación misteriosa tiene menos de dos unos, pero en la siguiente suposición, el 1 todavía se usó dos veces."}}, ""},
}};
// clang-format on

using TilesOf = std::vector<ExampleRow> (*)(std::size_t, const GameTypeInfo*, bool);

template <std::size_t N>
SheetSection examples(const Bilingual& heading, const std::array<Example, N>& table, TilesOf tiles,
                      const GameTypeInfo* info, bool english) {
  SheetSection section{std::string(pick(heading, english)), {}};
  for (std::size_t i = 0; i < N; ++i) {
    if (auto text = familyText(table[i].texts, info, table[i].fallback, english))
      section.lines.push_back({std::move(*text), {}, table[i].colour, tiles(i, info, english)});
  }
  return section;
}

}  // namespace

SheetSection colourHintExamples(const GameTypeInfo* info, bool english) {
  return examples({"Color Hint Examples", "Ejemplos de sugerencias de color"}, kColourHints, colourHintTiles,
                  info, english);
}

const FamilyTexts& refusedEntryText(bool repeated) {
  return kColourHints[repeated ? 6 : 5].texts;
}

const FamilyTexts& smartModeErrorText(std::size_t check) {
  return kSmartModeErrors[std::min(check, kSmartModeErrors.size() - 1)].texts;
}

SheetSection smartModeErrorExamples(const GameTypeInfo* info, bool english) {
  return examples({"Smart Mode Error Examples", "Modo inteligente Ejemplos de errores"}, kSmartModeErrors,
                  smartModeTiles, info, english);
}

}  // namespace tessarine::help
