#include "tile_list_model.h"

#include <algorithm>

int TileListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant TileListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return {};
  const TileItem& item = items_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case SymbolRole:
      return item.symbol;
    case GlyphRole:
      return item.glyph;
    case ColorNameRole:
      return item.colorName;
    case SpokenNameRole:
      return item.spokenName;
    case BorderWidthRole:
      return item.borderWidth;
    case LiveRole:
      return item.live;
    case GridRowRole:
      return item.gridRow;
    case GridColumnRole:
      return item.gridColumn;
    case RowLengthRole:
      return item.rowLength;
    case PatternRole:
      return item.pattern;
    default:
      return {};
  }
}

QHash<int, QByteArray> TileListModel::roleNames() const {
  return {{SymbolRole, "symbol"},           {GlyphRole, "glyph"},
          {ColorNameRole, "colorName"},     {SpokenNameRole, "spokenName"},
          {BorderWidthRole, "borderWidth"}, {LiveRole, "live"},
          {GridRowRole, "gridRow"},         {GridColumnRole, "gridColumn"},
          {RowLengthRole, "rowLength"},     {PatternRole, "pattern"}};
}

void TileListModel::setItems(std::vector<TileItem> items) {
  int rows = 0;
  int columns = 0;
  for (const TileItem& item : items) {
    rows = std::max(rows, item.gridRow + 1);
    columns = std::max(columns, item.rowLength);
  }
  const bool reshaped = rows != gridRows_ || columns != gridColumns_;
  if (items.size() != items_.size()) {
    beginResetModel();
    items_ = std::move(items);
    gridRows_ = rows;
    gridColumns_ = columns;
    endResetModel();
  } else {
    std::vector<int> changed;
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (!(items[i] == items_[i])) changed.push_back(static_cast<int>(i));
    }
    items_ = std::move(items);
    gridRows_ = rows;
    gridColumns_ = columns;
    for (int row : changed)
      emit dataChanged(index(row), index(row));
  }
  if (reshaped) emit shapeChanged();
}

int TileListModel::liveIndexOf(const QString& typed) const {
  QString symbol = typed.toUpper();
  if (symbol == QLatin1String("*")) symbol = QStringLiteral("X");
  for (std::size_t i = 0; i < items_.size(); ++i) {
    if (items_[i].symbol == symbol && items_[i].live) return static_cast<int>(i);
  }
  return -1;
}
