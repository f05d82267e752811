#include "tile_texts.h"

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
