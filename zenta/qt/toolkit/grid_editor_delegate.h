#pragma once

#include <QStyledItemDelegate>
#include <map>

namespace zenta::qt {

class QtNumberEdit;

// Hosts a grid column's number edit as the view's cell editor. A view creates an editor for each
// edit and destroys it afterwards, but the control keeps talking to its one editor between
// edits: this delegate hands out the same widget every time and only hides it. The grid fills
// the editor and writes the cell itself, and the editor handles its own keys and focus, so the
// delegate's usual commit-on-Tab and close-on-focus-out filtering is switched off.
class GridEditorDelegate : public QStyledItemDelegate {
 public:
  explicit GridEditorDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

  // `editor` (nullptr: none) edits the cells of `column`.
  void SetEditor(int column, QtNumberEdit* editor);
  QtNumberEdit* EditorOf(int column) const;
  // The column `editor` edits, or -1.
  int ColumnOf(const QtNumberEdit& editor) const;
  const std::map<int, QtNumberEdit*>& Editors() const { return editors_; }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  void setEditorData(QWidget*, const QModelIndex&) const override {}
  void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject*, QEvent*) override { return false; }

 private:
  std::map<int, QtNumberEdit*> editors_;
};

}  // namespace zenta::qt
