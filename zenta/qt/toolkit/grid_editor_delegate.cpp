#include "zenta/qt/toolkit/grid_editor_delegate.h"

#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {

void GridEditorDelegate::SetEditor(int column, QtNumberEdit* editor) {
  if (editor) {
    editors_[column] = editor;
  } else {
    editors_.erase(column);
  }
}

QtNumberEdit* GridEditorDelegate::EditorOf(int column) const {
  auto found = editors_.find(column);
  return found == editors_.end() ? nullptr : found->second;
}

int GridEditorDelegate::ColumnOf(const QtNumberEdit& editor) const {
  for (const auto& [column, cell_editor] : editors_) {
    if (cell_editor == &editor) return column;
  }
  return -1;
}

QWidget* GridEditorDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  QtNumberEdit* editor = EditorOf(index.column());
  if (editor && editor->parentWidget() != parent) editor->setParent(parent);
  return editor;
}

void GridEditorDelegate::destroyEditor(QWidget* editor, const QModelIndex&) const { editor->hide(); }

void GridEditorDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

}  // namespace zenta::qt
