#include "zenta/qt/toolkit/accessible_grid.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QHeaderView>
#include <QPointer>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <vector>

#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_grid_view.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {
namespace {

using platform::ColumnKind;

// The model columns the view shows, in order.
std::vector<int> ShownColumns(const QtGridView& view) {
  std::vector<int> shown;
  const int count = view.model()->columnCount();
  for (int column = 0; column < count; ++column) {
    if (!view.isColumnHidden(column)) shown.push_back(column);
  }
  return shown;
}

int ShownPosition(const QtGridView& view, int column) {
  const std::vector<int> shown = ShownColumns(view);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (shown[i] == column) return static_cast<int>(i);
  }
  return -1;
}

bool HasFooter(const QtGridView& view) {
  for (int column : ShownColumns(view)) {
    if (!view.Engine().Column(column).footer_text.empty()) return true;
  }
  return false;
}

QAccessibleInterface* GridInterface(QtGridView* view) { return QAccessible::queryAccessibleInterface(view); }

// Types `text` over a cell as a person would: the cell made current, its whole text selected,
// every character through the grid's key rules, then the cell ended. False when the grid
// refused a step (a locked cell, a host's veto); what was typed then stays as the grid left it.
bool TypeOver(QtGridView& view, int row, int column, const QString& text) {
  const QPointer<QtGridView> alive(&view);
  platform::GridEngine& engine = view.Engine();
  engine.ClickCell(row, column);
  if (!alive || engine.CurrentRow() != row || engine.CurrentColumn() != column) return false;
  if (!engine.StartEdit()) return false;
  engine.SetSelection(0, static_cast<int>(utf8::Decode(engine.EditText()).size()));
  if (text.isEmpty()) engine.TypeCharacter(platform::keys::kBackspace);
  for (char32_t character : text.toUcs4()) {
    if (!alive || !engine.IsEditing()) return false;
    engine.TypeCharacter(character);
  }
  return alive && engine.CommitEdit();
}

// A part of a grid that has no widget or children of its own: a header, footer or cell.
class AccessibleGridPart : public QAccessibleInterface {
 public:
  explicit AccessibleGridPart(QtGridView* view) : view_(view) {}

  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return view_ ? view_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override { return view_ ? GridInterface(view_) : nullptr; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

 protected:
  QPointer<QtGridView> view_;
};

// A header or footer cell of a shown column.
class AccessibleGridEdge : public AccessibleGridPart {
 public:
  enum class Edge { Header, Footer };
  AccessibleGridEdge(QtGridView* view, int column, Edge edge) : AccessibleGridPart(view), column_(column), edge_(edge) {}

  bool isValid() const override { return view_ && column_ < view_->model()->columnCount(); }
  QAccessible::Role role() const override {
    return edge_ == Edge::Header ? QAccessible::ColumnHeader : QAccessible::StaticText;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    return state;
  }
  void setText(QAccessible::Text, const QString&) override {}
  QString text(QAccessible::Text kind) const override {
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Value)) return {};
    const platform::GridColumn& column = view_->Engine().Column(column_);
    if (edge_ == Edge::Header) return kind == QAccessible::Name ? UiText(column.caption) : QString();
    const QString footer = UiText(column.footer_text);
    return column.kind == ColumnKind::Number ? LocalAmountText(footer, view_->locale()) : footer;
  }
  QRect rect() const override {
    if (!isValid()) return {};
    const QHeaderView& header = *view_->horizontalHeader();
    const int left = header.sectionViewportPosition(column_);
    if (edge_ == Edge::Header) {
      return QRect(header.mapToGlobal(QPoint(left, 0)), QSize(header.sectionSize(column_), header.height()));
    }
    const QRect area = view_->viewport()->geometry();
    const int height = view_->verticalHeader()->defaultSectionSize();
    return QRect(view_->mapToGlobal(QPoint(area.left() + left, area.bottom() + 1)), QSize(header.sectionSize(column_), height));
  }

  int Column() const { return column_; }
  Edge Part() const { return edge_; }

 private:
  int column_;
  Edge edge_;
};

// A cell: a button, or text a person reads and types.
class AccessibleGridCell : public AccessibleGridPart,
                           public QAccessibleTableCellInterface,
                           public QAccessibleActionInterface,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface,
                           public QAccessibleValueInterface {
 public:
  AccessibleGridCell(QtGridView* view, int row, int column) : AccessibleGridPart(view), row_(row), column_(column) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    switch (type) {
      case QAccessible::TableCellInterface: return static_cast<QAccessibleTableCellInterface*>(this);
      case QAccessible::ActionInterface: return static_cast<QAccessibleActionInterface*>(this);
      case QAccessible::TextInterface: return IsButton() ? nullptr : static_cast<QAccessibleTextInterface*>(this);
      case QAccessible::EditableTextInterface:
        return Editable() ? static_cast<QAccessibleEditableTextInterface*>(this) : nullptr;
      case QAccessible::ValueInterface: return IsAmount() ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
      default: return nullptr;
    }
  }

  bool isValid() const override {
    return view_ && row_ < view_->model()->rowCount() && column_ < view_->model()->columnCount();
  }
  QAccessible::Role role() const override { return IsButton() ? QAccessible::Button : QAccessible::Cell; }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.focusable = true;
    state.selectable = true;
    state.selected = IsCurrent();
    state.focused = state.selected && view_->hasFocus();
    state.disabled = !view_->isEnabled();
    if (!IsButton()) {
      state.editable = Editable();
      state.readOnly = !state.editable;
      state.selectableText = true;
    }
    return state;
  }

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    const QModelIndex index = Index();
    switch (kind) {
      case QAccessible::Name:
        return IsButton() ? UiText(Described().button_tooltip) : index.data(Qt::AccessibleTextRole).toString();
      case QAccessible::Description:
        return IsButton() ? index.data(Qt::DisplayRole).toString() : index.data(Qt::AccessibleDescriptionRole).toString();
      case QAccessible::Value: return IsButton() ? QString() : index.data(Qt::DisplayRole).toString();
      default: return {};
    }
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind == QAccessible::Value && Editable()) TypeOver(*view_, Row(), column_, text);
  }
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect cell = view_->visualRect(Index());
    return QRect(view_->viewport()->mapToGlobal(cell.topLeft()), cell.size());
  }

  // Table cell.
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    QAccessibleInterface* grid = parent();
    QAccessibleInterface* header = grid ? grid->child(columnIndex()) : nullptr;
    return header ? QList<QAccessibleInterface*>{header} : QList<QAccessibleInterface*>{};
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return view_ ? ShownPosition(*view_, column_) : -1; }
  int rowIndex() const override { return row_; }
  bool isSelected() const override { return isValid() && IsCurrent(); }
  QAccessibleInterface* table() const override { return parent(); }

  // Actions: a button is pressed; any cell can be made the current one.
  QStringList actionNames() const override {
    if (!isValid()) return {};
    if (IsButton()) return {pressAction(), setFocusAction()};
    return {setFocusAction()};
  }
  void doAction(const QString& name) override {
    if (!isValid()) return;
    platform::GridEngine& engine = view_->Engine();
    if (name == pressAction() && IsButton()) {
      engine.ClickButton(Row(), column_);
    } else if (name == setFocusAction()) {
      const QPointer<QtGridView> alive(view_);
      view_->setFocus(Qt::OtherFocusReason);
      if (alive) engine.ClickCell(Row(), column_);
    }
  }
  QStringList keyBindingsForAction(const QString& name) const override {
    return name == pressAction() && IsButton() ? QStringList{QStringLiteral("Space")} : QStringList{};
  }

  // Text: what the cell shows. Caret and selection belong to typing, which the grid paints.
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override { return Shown().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(Shown().size()); }
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {
    if (isValid()) view_->scrollTo(Index());
  }
  QString attributes(int offset, int* start, int* end) const override {
    *start = *end = offset;
    return {};
  }

  // Editable text: the edit is made on the cell's text as typed (an amount's plain digits and
  // "."), then typed over the cell.
  void deleteText(int start, int end) override { replaceText(start, end, QString()); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    if (!Editable()) return;
    QString typed = ToQString(view_->Engine().DisplayedText(Row(), column_));
    start = std::clamp(start, 0, static_cast<int>(typed.size()));
    end = std::clamp(end, start, static_cast<int>(typed.size()));
    typed.replace(start, end - start, text);
    TypeOver(*view_, Row(), column_, typed);
  }

  // Value: an amount cell's number; a new one is typed with its two decimals.
  QVariant currentValue() const override {
    if (!isValid()) return {};
    const auto amount = CurrencyFromQString(ToQString(view_->Engine().DisplayedText(Row(), column_)));
    return amount ? QVariant(amount->ToDouble()) : QVariant();
  }
  void setCurrentValue(const QVariant& value) override {
    bool number = false;
    const double amount = value.toDouble(&number);
    if (!number || !Editable()) return;
    TypeOver(*view_, Row(), column_, ToQString(FormatNumber(amount, formats::kAmount)));
  }
  QVariant maximumValue() const override { return {}; }
  QVariant minimumValue() const override { return {}; }
  QVariant minimumStepSize() const override { return 0.01; }

  int ModelRow() const { return row_; }
  int Column() const { return column_; }

 private:
  QModelIndex Index() const { return view_->model()->index(row_, column_); }
  int Row() const { return view_->Engine().BookmarkAt(row_); }
  const platform::GridColumn& Described() const { return view_->Engine().Column(column_); }
  bool IsButton() const {
    if (!isValid() || Described().kind != ColumnKind::Button || Described().button_tooltip.empty()) return false;
    return view_->Engine().HasButtonToPress(Row());
  }
  bool IsAmount() const { return isValid() && Described().kind == ColumnKind::Number; }
  bool Editable() const {
    return isValid() && Described().kind != ColumnKind::Button && !Described().locked && view_->isEnabled();
  }
  bool IsCurrent() const {
    const platform::GridEngine& engine = view_->Engine();
    return engine.CurrentRow() == Row() && engine.CurrentColumn() == column_;
  }
  QString Shown() const { return isValid() && !IsButton() ? Index().data(Qt::DisplayRole).toString() : QString(); }

  int row_;
  int column_;
};

// The grid as a table. Cell interfaces are made when asked for and kept while their row exists,
// so a reader holding one keeps a valid cell as rows are added after it.
class AccessibleGrid : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit AccessibleGrid(QtGridView* view) : QAccessibleWidget(view, QAccessible::Table), view_(view) {
    QAbstractItemModel* model = view->model();
    QObject::connect(model, &QAbstractItemModel::modelReset, &guard_, [this] { Forget(0); });
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, &guard_,
                     [this](const QModelIndex&, int first, int) { Forget(first); });
  }
  ~AccessibleGrid() override { Forget(0); }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) {
      const QString given = view_->accessibleName();
      return given.isEmpty() ? UiText(view_->Engine().Caption()) : given;
    }
    if (kind == QAccessible::Description && view_->accessibleDescription().isEmpty()) {
      QStringList captions;
      for (int column : ShownColumns(*view_)) captions << UiText(view_->Engine().Column(column).caption);
      return captions.join(QStringLiteral(", "));
    }
    return QAccessibleWidget::text(kind);
  }

  int childCount() const override {
    const int columns = Columns();
    return columns + view_->model()->rowCount() * columns + (HasFooter(*view_) ? columns : 0);
  }
  QAccessibleInterface* child(int index) const override {
    const std::vector<int> shown = ShownColumns(*view_);
    const int columns = static_cast<int>(shown.size());
    const int rows = view_->model()->rowCount();
    if (index < 0 || columns == 0) return nullptr;
    if (index < columns) return Edge(shown[static_cast<std::size_t>(index)], AccessibleGridEdge::Edge::Header);
    index -= columns;
    if (index < rows * columns) return Cell(index / columns, shown[static_cast<std::size_t>(index % columns)]);
    index -= rows * columns;
    if (index < columns && HasFooter(*view_)) return Edge(shown[static_cast<std::size_t>(index)], AccessibleGridEdge::Edge::Footer);
    return nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const int columns = Columns();
    if (const auto* cell = dynamic_cast<const AccessibleGridCell*>(child)) {
      const int position = cell->columnIndex();
      return position < 0 ? -1 : columns + cell->ModelRow() * columns + position;
    }
    if (const auto* edge = dynamic_cast<const AccessibleGridEdge*>(child)) {
      const int position = ShownPosition(*view_, edge->Column());
      if (position < 0) return -1;
      if (edge->Part() == AccessibleGridEdge::Edge::Header) return position;
      return columns + view_->model()->rowCount() * columns + position;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint point = view_->viewport()->mapFromGlobal(QPoint(x, y));
    const QModelIndex index = view_->indexAt(point);
    if (index.isValid() && !view_->isColumnHidden(index.column())) return Cell(index.row(), index.column());
    return QAccessibleWidget::childAt(x, y);
  }
  QAccessibleInterface* focusChild() const override {
    const QModelIndex current = view_->currentIndex();
    if (!view_->hasFocus() || !current.isValid() || view_->isColumnHidden(current.column())) return nullptr;
    return Cell(current.row(), current.column());
  }

  // Table.
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    const std::vector<int> shown = ShownColumns(*view_);
    if (row < 0 || row >= view_->model()->rowCount() || column < 0 || column >= static_cast<int>(shown.size())) {
      return nullptr;
    }
    return Cell(row, shown[static_cast<std::size_t>(column)]);
  }
  int columnCount() const override { return Columns(); }
  int rowCount() const override { return view_->model()->rowCount(); }
  QString columnDescription(int column) const override {
    const std::vector<int> shown = ShownColumns(*view_);
    if (column < 0 || column >= static_cast<int>(shown.size())) return {};
    return UiText(view_->Engine().Column(shown[static_cast<std::size_t>(column)]).caption);
  }
  QString rowDescription(int) const override { return {}; }
  int selectedCellCount() const override { return focusChildOrCurrent() ? 1 : 0; }
  QList<QAccessibleInterface*> selectedCells() const override {
    QAccessibleInterface* current = focusChildOrCurrent();
    return current ? QList<QAccessibleInterface*>{current} : QList<QAccessibleInterface*>{};
  }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  int Columns() const { return static_cast<int>(ShownColumns(*view_).size()); }

  QAccessibleInterface* focusChildOrCurrent() const {
    const QModelIndex current = view_->currentIndex();
    if (!current.isValid() || view_->isColumnHidden(current.column())) return nullptr;
    return Cell(current.row(), current.column());
  }

  static quint64 Key(int kind, int row, int column) {
    return (static_cast<quint64>(kind) << 62) | (static_cast<quint64>(static_cast<quint32>(row)) << 16) |
           static_cast<quint64>(static_cast<quint16>(column));
  }

  template <class Made>
  QAccessibleInterface* Cached(quint64 key, Made make) const {
    auto found = cache_.constFind(key);
    if (found != cache_.constEnd()) {
      if (QAccessibleInterface* known = QAccessible::accessibleInterface(*found)) return known;
    }
    QAccessibleInterface* made = make();
    cache_.insert(key, QAccessible::registerAccessibleInterface(made));
    return made;
  }

  QAccessibleInterface* Cell(int row, int column) const {
    return Cached(Key(0, row, column), [&] { return new AccessibleGridCell(view_, row, column); });
  }
  QAccessibleInterface* Edge(int column, AccessibleGridEdge::Edge edge) const {
    const int kind = edge == AccessibleGridEdge::Edge::Header ? 1 : 2;
    return Cached(Key(kind, 0, column), [&] { return new AccessibleGridEdge(view_, column, edge); });
  }

  // Drops the cells of rows from `first` on (every one for 0), headers and footers with them.
  void Forget(int first) {
    for (auto it = cache_.begin(); it != cache_.end();) {
      const bool cell = (it.key() >> 62) == 0;
      const int row = static_cast<int>((it.key() >> 16) & 0xffffffffu);
      if (first == 0 || (cell && row >= first)) {
        QAccessible::deleteAccessibleInterface(it.value());
        it = cache_.erase(it);
      } else {
        ++it;
      }
    }
  }

  QtGridView* view_;
  QObject guard_;  // ends the model connections with this interface
  mutable QHash<quint64, QAccessible::Id> cache_;
};

QAccessibleInterface* GridFactory(const QString&, QObject* object) {
  auto* view = dynamic_cast<QtGridView*>(object);
  return view ? new AccessibleGrid(view) : nullptr;
}

}  // namespace

void InstallAccessibleGrids() {
  static const bool installed = [] {
    QAccessible::installFactory(&GridFactory);
    return true;
  }();
  (void)installed;
}

int AccessibleChildIndex(const QtGridView& view, const QModelIndex& index) {
  if (!index.isValid()) return -1;
  const int position = ShownPosition(view, index.column());
  if (position < 0) return -1;
  const int columns = static_cast<int>(ShownColumns(view).size());
  return columns + index.row() * columns + position;
}

}  // namespace zenta::qt
