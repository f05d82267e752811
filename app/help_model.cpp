#include "help_model.h"

#include <QVariantMap>

#include "catalogue/catalogue.h"
#include "core_text.h"
#include "options_model.h"
#include "screens/fourth_view.h"
#include "screens/third_view.h"
#include "tile_items.h"

namespace {

tessarine::ThirdView shownHelp(const OptionsModel& options) {
  const tessarine::Options shown = options.shownOptions();
  return tessarine::thirdView(shown.gameType, shown.EnglishTranslation, shown.EnglishWords);
}

tessarine::FourthView shownRules(const OptionsModel& options) {
  const tessarine::Options shown = options.shownOptions();
  return tessarine::fourthView(shown.gameType, shown.EnglishTranslation);
}

// The example tiles are drawn by the board's own tile, so they take the same texts it does.
QVariantList exampleRows(const tessarine::SheetLine& line, bool equation, bool colourBlind) {
  QVariantList rows;
  for (const tessarine::ExampleRow& row : line.tiles) {
    QVariantList tiles;
    for (const tessarine::ExampleTile& tile : row) {
      const TileItem item = tileItem(tile.symbol, tile.colour, equation, colourBlind);
      tiles.append(QVariantMap{{"glyph", item.glyph},
                               {"colorName", item.colorName},
                               {"spokenName", item.spokenName},
                               {"pattern", item.pattern}});
    }
    rows.append(QVariant(tiles));
  }
  return rows;
}

}  // namespace

HelpModel::HelpModel(OptionsModel& options, QObject* parent) : QObject(parent), options_(options) {
  connect(&options, &OptionsModel::changed, this, &HelpModel::changed);
}

QString HelpModel::helpTitle() const {
  return fromCore(tessarine::thirdViewTitle(options_.shownOptions().EnglishTranslation));
}

QString HelpModel::backSymbol() {
  return fromCore(tessarine::ThirdView::backSymbol);
}

QVariantList HelpModel::helpSections() const {
  const tessarine::ThirdView view = shownHelp(options_);
  const tessarine::GameTypeInfo* info = tessarine::findGameType(options_.shownOptions().gameType);
  const bool equation = info != nullptr && info->typeOfGame == "E";
  const bool colourBlind = options_.shownPresentation().colourBlind;
  QVariantList sections;
  for (const tessarine::SheetSection& section : view.sections) {
    QVariantList lines;
    for (const tessarine::SheetLine& line : section.lines) {
      lines.append(QVariantMap{
          {"text", fromCore(line.text)},
          {"symbol", fromCore(line.symbol)},
          {"colorName", line.colour ? fromCore(tessarine::tileColorName(*line.colour)) : QString()},
          {"rows", exampleRows(line, equation, colourBlind)}});
    }
    sections.append(QVariantMap{{"heading", fromCore(section.heading)}, {"lines", lines}});
  }
  return sections;
}

QString HelpModel::rulesTitle() const {
  return fromCore(tessarine::FourthView::title);
}

QString HelpModel::rulesBullet() {
  return fromCore(tessarine::FourthView::bullet);
}

QStringList HelpModel::rules() const {
  return fromCoreList(shownRules(options_).rules);
}
