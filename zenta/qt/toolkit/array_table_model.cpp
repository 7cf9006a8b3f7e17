#include "zenta/qt/toolkit/array_table_model.h"

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

ArrayTableModel::ArrayTableModel(QObject* parent, int columns)
    : QAbstractTableModel(parent), captions_(static_cast<std::size_t>(columns)) {}

void ArrayTableModel::SetArray(std::shared_ptr<platform::Array2D> array) {
  beginResetModel();
  array_ = std::move(array);
  endResetModel();
}

void ArrayTableModel::Reset() {
  beginResetModel();
  endResetModel();
}

void ArrayTableModel::CellsChanged(int model_row) {
  if (model_row < 0 || model_row >= rowCount()) return;
  emit dataChanged(index(model_row, 0), index(model_row, columnCount() - 1));
}

void ArrayTableModel::SetCaption(int column, const QString& caption) {
  if (column < 0 || column >= columnCount()) return;
  captions_[static_cast<std::size_t>(column)] = caption;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

QString ArrayTableModel::Caption(int column) const {
  return column >= 0 && column < columnCount() ? captions_[static_cast<std::size_t>(column)] : QString();
}

int ArrayTableModel::BookmarkOf(int model_row) const { return array_ ? array_->LowerBound(1) + model_row : model_row; }
int ArrayTableModel::ModelRowOf(int bookmark) const { return array_ ? bookmark - array_->LowerBound(1) : bookmark; }

std::string ArrayTableModel::StoredText(int bookmark, int column) const {
  if (!array_ || bookmark < array_->LowerBound(1) || bookmark > array_->UpperBound(1) ||
      column < array_->LowerBound(2) || column > array_->UpperBound(2)) {
    return {};
  }
  const Variant& cell = array_->Get(bookmark, column);
  return cell.IsNull() || cell.IsObject() ? std::string() : cell.ToString();
}

int ArrayTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !array_ ? 0 : array_->RowCount();
}

int ArrayTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(captions_.size());
}

Qt::ItemFlags ArrayTableModel::flags(const QModelIndex& index) const {
  // Editable so that a view opens a column's editor; which columns have one is the grid's affair.
  if (!index.isValid()) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}

QVariant ArrayTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
  int bookmark = BookmarkOf(index.row());
  if (overlay_) {
    if (auto pending = overlay_(bookmark, index.column())) return ToQString(*pending);
  }
  return ToQString(StoredText(bookmark, index.column()));
}

QVariant ArrayTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return Caption(section);
}

}  // namespace zenta::qt
