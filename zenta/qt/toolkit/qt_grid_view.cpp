#include "zenta/qt/toolkit/qt_grid_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include "zenta/core/utf8.h"
#include "zenta/qt/toolkit/grid_engine_model.h"
#include "zenta/qt/toolkit/key_mapping.h"

namespace zenta::qt {

QtGridView::QtGridView(QWidget* parent, const platform::WidgetSpec& definition, int column_count)
    : QTableView(parent), QtWidgetBase(*this, definition),
      engine_(std::make_unique<platform::GridEngine>(*this, column_count)) {
  model_ = new GridEngineModel(this, *engine_);
  setModel(model_);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectItems);
  setTabKeyNavigation(false);
  // Fixed row heights: nothing is measured per row, however many rows there are.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
  verticalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  horizontalHeader()->setStretchLastSection(true);
}

QtGridView::~QtGridView() = default;

int QtGridView::ToTwips(int pixels) const { return logicalDpiY() > 0 ? pixels * 1440 / logicalDpiY() : pixels * 15; }

int QtGridView::FirstRowTop() const { return Rect().top + ToTwips(horizontalHeader()->height()); }

int QtGridView::RowHeight() const { return ToTwips(verticalHeader()->defaultSectionSize()); }

void QtGridView::RowsChanged() {
  model_->Reset();
  CurrentCellChanged();
}

void QtGridView::RowChanged(int row) { model_->RowChanged(row - engine_->FirstRow()); }

void QtGridView::ColumnsChanged() {
  model_->ColumnsChanged();
  for (int column = 0; column < engine_->ColumnCount(); ++column) {
    const platform::GridColumn& description = engine_->Column(column);
    setColumnHidden(column, !description.visible);
    if (description.width > 0) {
      setColumnWidth(column, description.width * logicalDpiX() / 1440);
    }
  }
  viewport()->update();
}

void QtGridView::CurrentCellChanged() {
  if (moving_) return;
  QScopedValueRollback<bool> guard(moving_, true);
  std::optional<int> row = engine_->CurrentRow();
  if (!row) return;
  QModelIndex index = model_->index(*row - engine_->FirstRow(), engine_->CurrentColumn());
  if (index.isValid()) {
    setCurrentIndex(index);
    scrollTo(index);
  }
  viewport()->update();
}

void QtGridView::Post(std::function<void()> action) {
  QPointer<QtGridView> self(this);
  QMetaObject::invokeMethod(
      this, [self, action = std::move(action)] { if (self) action(); }, Qt::QueuedConnection);
}

void QtGridView::keyPressEvent(QKeyEvent* event) {
  platform::KeyDown key = ToKeyDown(*event);
  engine_->KeyDown(key);
  if (key.key_code == 0) {
    event->accept();
    return;
  }
  if (key.key_code == platform::keys::kTab) {
    // Tab the grid does not use leaves it, as from any field.
    focusNextPrevChild((key.shift & platform::kShift) == 0);
    event->accept();
    return;
  }
  if (key.key_code == platform::keys::kEnter) {
    engine_->TypeCharacter(U'\r');
  } else if (key.key_code == platform::keys::kBackspace) {
    engine_->TypeCharacter(platform::keys::kBackspace);
  } else {
    for (char32_t character : utf8::Decode(event->text().toStdString())) {
      if (character >= 32) engine_->TypeCharacter(character);
    }
  }
  event->accept();
}

void QtGridView::mousePressEvent(QMouseEvent* event) {
  QModelIndex index = indexAt(event->position().toPoint());
  if (!hasFocus()) setFocus(Qt::MouseFocusReason);
  if (!index.isValid()) return;
  int row = engine_->BookmarkAt(index.row());
  if (engine_->Column(index.column()).kind == platform::ColumnKind::Button) {
    engine_->ClickButton(row, index.column());
  } else {
    engine_->ClickCell(row, index.column());
  }
  event->accept();
}

void QtGridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (!IsTransientFocusChange(event->reason())) engine_->FocusGained();
}

void QtGridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  if (!IsTransientFocusChange(event->reason())) engine_->FocusLost();
}

bool QtGridView::focusNextPrevChild(bool next) { return QWidget::focusNextPrevChild(next); }

}  // namespace zenta::qt
