#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <QString>
#include <vector>

// One drawn symbol of a board or keypad: what it shows and where it stands. The texts are final;
// a delegate only draws them.
struct TileItem {
  QString symbol;      // as the game spells it ("X" for times)
  QString glyph;       // as it is drawn ("×")
  QString colorName;   // the core's colour name
  QString spokenName;  // for a screen reader: "C, green"
  QString pattern;     // symbol drawn over the colour for colour-blind players; empty for none
  qreal borderWidth = 1;
  bool live = true;  // a dead key has no action
  int gridRow = 0;
  int gridColumn = 0;
  int rowLength = 0;  // symbols in this item's grid row, for centring short rows
  bool operator==(const TileItem&) const = default;
};

// The tiles of a board or the keys of a keypad, one list row per item. Any board (the main game,
// a match) fills one with setItems(); rows that did not change are left alone, so a key press
// repaints the one or two delegates it touched.
class TileListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Filled by a screen model")
  Q_PROPERTY(int gridRows READ gridRows NOTIFY shapeChanged)
  Q_PROPERTY(int gridColumns READ gridColumns NOTIFY shapeChanged)

 public:
  enum Role {
    SymbolRole = Qt::UserRole + 1,
    GlyphRole,
    ColorNameRole,
    SpokenNameRole,
    BorderWidthRole,
    LiveRole,
    GridRowRole,
    GridColumnRole,
    RowLengthRole,
    PatternRole,
  };
  Q_ENUM(Role)

  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  int gridRows() const { return gridRows_; }
  int gridColumns() const { return gridColumns_; }
  const std::vector<TileItem>& items() const { return items_; }
  // The live key that a physical keyboard's `typed` text means ("*" is the times key), or -1.
  int liveIndexOf(const QString& typed) const;

  // Replaces the items: a new count is a reset, otherwise only the changed rows are announced.
  void setItems(std::vector<TileItem> items);

 signals:
  void shapeChanged();

 private:
  std::vector<TileItem> items_;
  int gridRows_ = 0;
  int gridColumns_ = 0;
};
