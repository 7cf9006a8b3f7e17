#pragma once

#include <QStyledItemDelegate>

#include "zenta/platform/grid_engine.h"

namespace zenta::qt {

// Paints a grid engine's cells: button cells as push buttons, and the cell being edited as an
// edit field with the engine's text, selection and a caret, so the open edit is visible exactly
// as the engine holds it, without a second editor widget to keep in step.
class GridCellDelegate : public QStyledItemDelegate {
 public:
  GridCellDelegate(QObject* parent, const platform::GridEngine& engine) : QStyledItemDelegate(parent), engine_(engine) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void PaintButton(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void PaintEdit(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

  const platform::GridEngine& engine_;
};

}  // namespace zenta::qt
