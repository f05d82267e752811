#include "tile_texts.h"

#include <QHash>

QString glyphFor(const QString& symbol, bool equation) {
  if (!equation) return symbol;
  if (symbol == QLatin1String("X")) return QStringLiteral("\u00d7");
  if (symbol == QLatin1String("/")) return QStringLiteral("\u00f7");
  if (symbol == QLatin1String("-")) return QStringLiteral("\u2212");
  return symbol;
}

QString spokenName(const QString& symbol, const QString& colorName, bool equation) {
  QString said = symbol.trimmed();
  if (said.isEmpty()) said = QStringLiteral("blank");
  if (equation) {
    if (said == QLatin1String("+")) said = QStringLiteral("plus");
    if (said == QLatin1String("-")) said = QStringLiteral("minus");
    if (said == QLatin1String("X")) said = QStringLiteral("times");
    if (said == QLatin1String("/")) said = QStringLiteral("divided by");
    if (said == QLatin1String("=")) said = QStringLiteral("equals");
  }
  return said + QStringLiteral(", ") + colorName;
}

QString spokenMark(const QString& symbol) {
  static const QHash<QString, QString> meanings = {
      {QStringLiteral("star.fill"), QStringLiteral("star: no colour code broken")},
      {QStringLiteral("exclamationmark.2"), QStringLiteral("refused by Smart Mode")},
      {QStringLiteral("exclamationmark.triangle.fill"), QStringLiteral("not a valid guess")},
      {QStringLiteral("questionmark"), QStringLiteral("hints used")},
      {QStringLiteral("exclamationmark.questionmark"), QStringLiteral("one hint used")},
      {QStringLiteral("multiply"), QStringLiteral("no star: the colour code was not kept")},
      {QStringLiteral("questionmark.circle"), QStringLiteral("no guess yet")},
      {QStringLiteral("graduationcap.fill"), QStringLiteral("genius game")},
      {QStringLiteral("parkingsign.circle"), QStringLiteral("prime numbers only")},
  };
  return meanings.value(symbol);
}
