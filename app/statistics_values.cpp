#include "statistics_values.h"

#include <QVariantList>

#include "core_text.h"

using tessarine::ButtonLook;

namespace {

QVariantMap button(const ButtonLook& look) {
  return {{QStringLiteral("symbol"), fromCore(look.symbol)},
          {QStringLiteral("color"), fromCore(look.color)},
          {QStringLiteral("opacity"), look.opacity},
          {QStringLiteral("enabled"), look.enabled}};
}

}  // namespace

QVariantMap secondValues(const tessarine::SecondView& view) {
  QVariantList figures;
  for (const tessarine::FigureLine& line : view.figures())
    figures.append(QVariantMap{{QStringLiteral("label"), fromCore(line.label)},
                               {QStringLiteral("value"), fromCore(line.value)}});
  return {{QStringLiteral("title"), fromCore(view.title())},
          {QStringLiteral("thankYouLine"), fromCore(view.thankYouLine())},
          {QStringLiteral("latestScoreTitle"), fromCore(view.latestScoreTitle())},
          {QStringLiteral("latestScore"), fromCore(view.latestScore)},
          {QStringLiteral("unfinishedTitle"), fromCore(view.unfinishedTitle)},
          {QStringLiteral("unfinishedDate"), fromCore(view.unfinishedDate)},
          {QStringLiteral("figures"), figures},
          {QStringLiteral("backButton"), button(tessarine::kBackButton)},
          {QStringLiteral("distributionButton"), button(view.distributionButton())},
          {QStringLiteral("shareButton"), button(tessarine::kShareButton)},
          {QStringLiteral("listButton"), button(view.listButton())},
          {QStringLiteral("fontSizeTitle"), view.fontSizeTitle},
          {QStringLiteral("fontSizeText"), view.fontSizeText}};
}

QVariantMap fifthValues(const tessarine::FifthView& view) {
  return {{QStringLiteral("title"), fromCore(tessarine::FifthView::title)},
          {QStringLiteral("lines"), fromCoreList(view.lines())},
          {QStringLiteral("backButton"), button(tessarine::kBackButton)},
          {QStringLiteral("sortButton"), button(tessarine::FifthView::sortButton)},
          {QStringLiteral("dateFormatButton"), button(tessarine::FifthView::dateFormatButton)},
          {QStringLiteral("shareButton"), button(tessarine::kShareButton)},
          {QStringLiteral("sortMenuTitle"), fromCore(view.sortMenuTitle())},
          // The cancel button first; the index of a button is its sort choice.
          {QStringLiteral("sortMenuButtons"), fromCoreList(view.sortMenuButtons())},
          {QStringLiteral("dateFormatMenuTitle"), fromCore(view.dateFormatMenuTitle())},
          {QStringLiteral("dateFormatCancel"), fromCore(view.dateFormatCancel())},
          {QStringLiteral("dateFormats"), fromCoreList(tessarine::kDateFormats)},
          {QStringLiteral("fontSize"), view.fontSize}};
}

QVariantMap sixthValues(const tessarine::SixthView& view) {
  QVariantList bars;
  for (int bar = 0; bar < view.shownBars(); ++bar)
    bars.append(
        QVariantMap{{QStringLiteral("label"), fromCore(view.barLabel(bar))},
                    {QStringLiteral("length"), view.cellFrameWidth[bar]},
                    {QStringLiteral("color"), fromCore(tessarine::tileColorName(view.cellBackground[bar]))},
                    {QStringLiteral("count"), view.scoreInt[bar]}});
  return {{QStringLiteral("title"), fromCore(view.title())},
          {QStringLiteral("backButton"), button(tessarine::kBackButton)},
          {QStringLiteral("bars"), bars},
          {QStringLiteral("fontSizeTitle"), view.fontSizeTitle},
          {QStringLiteral("fontSizeText"), view.fontSizeText}};
}
