#include "symbol_icons.h"

#include <QFontDatabase>
#include <QStringList>

#include <QHash>

namespace {

// Codepoints from the Material Icons font: the nearest drawing to each system symbol.
const QHash<QString, char16_t>& table() {
  static const QHash<QString, char16_t> icons = {
      {QStringLiteral("gearshape"), 0xe8b8},                      // settings
      {QStringLiteral("info.circle"), 0xe88f},                    // info_outline
      {QStringLiteral("square.and.arrow.up"), 0xe6b8},            // ios_share
      {QStringLiteral("trash.square"), 0xe872},                   // delete
      {QStringLiteral("clear"), 0xe14a},                          // backspace
      {QStringLiteral("arrow.down.app"), 0xe8d7},                 // system_update_alt
      {QStringLiteral("calendar"), 0xe935},                       // calendar_today
      {QStringLiteral("chevron.right"), 0xe5cc},                  // chevron_right
      {QStringLiteral("sunrise"), 0xe1c6},                        // wb_twilight
      {QStringLiteral("figure.wave"), 0xe766},                    // waving_hand
      {QStringLiteral("star.fill"), 0xe838},                      // star
      {QStringLiteral("exclamationmark.questionmark"), 0xe94c},   // contact_support
      {QStringLiteral("questionmark"), 0xeb8b},                   // question_mark
      {QStringLiteral("exclamationmark.2"), 0x203c},              // double exclamation mark, text font
      {QStringLiteral("exclamationmark.triangle.fill"), 0xe002},  // warning
      {QStringLiteral("multiply"), 0xe5cd},                       // close
      {QStringLiteral("questionmark.circle"), 0xe8fd},            // help_outline
      {QStringLiteral("graduationcap.fill"), 0xe80c},             // school
      {QStringLiteral("parkingsign.circle"), u'P'},               // a P in a drawn circle, text font
      {QStringLiteral("lightbulb"), 0xe0f0},                      // lightbulb: the hints button
      {QStringLiteral("checkmark.square"), 0xe834},               // check_box: the green button
      {QStringLiteral("chevron.left"), 0xe5cb},                   // chevron_left
      {QStringLiteral("chart.bar"), 0xe26b},                      // bar_chart: the statistics button
      {QStringLiteral("chart.bar.doc.horizontal"), 0xe24b},       // insert_chart
      {QStringLiteral("list.bullet.rectangle"), 0xe0ee},          // list_alt
      {QStringLiteral("arrow.up.arrow.down.square"), 0xe8d5},     // swap_vert
      {QStringLiteral("doc.on.doc"), 0xe14d},                     // content_copy
      {QStringLiteral("checkmark.square.fill"), 0xe834},          // check_box: a lit lamp
      {QStringLiteral("square"), 0xe835},                         // check_box_outline_blank
      {QStringLiteral("circle.circle"), 0xe837},                  // radio_button_checked
      {QStringLiteral("figure.walk.diamond"), 0xe536},            // directions_walk
      {QStringLiteral("arrow.uturn.backward.square"), 0xe166},    // undo
      {QStringLiteral("doc.on.clipboard"), 0xe14f},               // content_paste
      {QStringLiteral("square.and.arrow.down"), 0xe161},          // save
      {QStringLiteral("square.fill"), 0xe834},                    // check_box: the box that is on
      // The colour-blind marks on the scoring colours.
      {QStringLiteral("checkmark"), 0xe5ca},               // check
      {QStringLiteral("plus"), 0xe145},                    // add
      {QStringLiteral("arrow.left.arrow.right"), 0xe8d4},  // swap_horiz
      {QStringLiteral("minus"), 0xe15b},                   // remove
      {QStringLiteral("circle.slash"), 0xe14b},            // block
      {QStringLiteral("graduationcap.blank"), 0},
      {QStringLiteral("parkingsign.blank"), 0},
  };
  return icons;
}

}  // namespace

QString SymbolIcons::fontFamily() {
  static const QString family = [] {
    const int id =
        QFontDatabase::addApplicationFont(QStringLiteral(":/Tessarine/fonts/MaterialIcons-Regular.ttf"));
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    return families.isEmpty() ? QString() : families.first();
  }();
  return family;
}

QString SymbolIcons::glyph(const QString& symbolName) {
  const auto found = table().constFind(symbolName);
  if (found == table().constEnd() || found.value() == 0) return {};
  return QString(QChar(found.value()));
}

bool SymbolIcons::textGlyph(const QString& symbolName) {
  // The icon font has neither a circled P nor a double exclamation mark: the text font draws them.
  const QString drawn = glyph(symbolName);
  return !drawn.isEmpty() && drawn.at(0).unicode() < 0xe000;
}

bool SymbolIcons::circled(const QString& symbolName) {
  return symbolName == QLatin1String("parkingsign.circle");
}

bool SymbolIcons::knows(const QString& symbolName) {
  return table().contains(symbolName);
}
