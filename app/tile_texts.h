#pragma once

#include <QString>

// How a symbol is drawn and said. Equations get the operator signs a reader expects; the
// symbols of words and numbers are drawn and said as they are.

// The character drawn for a symbol: "X" becomes "×", "/" "÷" and "-" the minus sign.
QString glyphFor(const QString& symbol, bool equation);
// What a tile or key says to a screen reader: "C, green", "times, gray", "blank, white".
QString spokenName(const QString& symbol, const QString& colorName, bool equation);
// What a row mark means, for a screen reader: "star: no colour code broken", "refused by Smart Mode".
QString spokenMark(const QString& symbol);
