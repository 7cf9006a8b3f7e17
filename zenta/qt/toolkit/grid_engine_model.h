#pragma once

#include <QAbstractTableModel>
#include <QPalette>

#include "zenta/platform/grid_engine.h"

namespace zenta::qt {

// The rows of a grid engine as Qt reads them: text, colours and captions come from the engine
// cell by cell when painted; nothing is copied.
class GridEngineModel : public QAbstractTableModel {
 public:
  GridEngineModel(QObject* parent, const platform::GridEngine& engine)
      : QAbstractTableModel(parent), engine_(engine), shown_rows_(engine.DisplayRowCount()) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  void Reset() {
    beginResetModel();
    shown_rows_ = engine_.DisplayRowCount();
    endResetModel();
  }
  // The rows changed: the views hear of the rows added or removed at the end and repaint the
  // rest, which costs them nothing per row, where a reset would make them start over.
  void RowsChanged();
  void RowChanged(int display_row);
  void ColumnsChanged() { headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

 private:
  // Amount columns show the view's decimal point.
  QString ShownText(int row, int column) const;
  // A cell of a button column that stands for an action (an existing row, a described button).
  bool IsButton(int row, int column) const;
  // The cell's note from the engine, translated; empty when it has none.
  QString HintText(int row, int column) const;
  // The view's palette: system colours and unset colours follow the host's theme.
  QPalette Palette() const;

  const platform::GridEngine& engine_;
  int shown_rows_ = 0;  // the row count the views were last told
};

}  // namespace zenta::qt
