#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

// The one table from the game's system symbol names to glyphs of the icon font shipped with the
// app (Material Icons). Names that draw nothing ("graduationcap.blank") give an empty string.
class SymbolIcons : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(Icons)
  QML_SINGLETON
  // The icon font's family, loaded once for every icon on every screen.
  Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)

 public:
  using QObject::QObject;
  static QString fontFamily();
  // The glyph for a symbol name; an unknown name is an empty string so nothing wrong is drawn.
  Q_INVOKABLE static QString glyph(const QString& symbolName);
  // Whether the glyph comes from the text font rather than the icon font.
  Q_INVOKABLE static bool textGlyph(const QString& symbolName);
  // Whether the glyph stands in a drawn circle.
  Q_INVOKABLE static bool circled(const QString& symbolName);
  // Whether the table knows the name (blank names included).
  static bool knows(const QString& symbolName);
};
