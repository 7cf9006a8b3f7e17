#include "zenta/qt/toolkit/qt_grid_view.h"

#include <QAccessible>
#include <QHeaderView>
#include <algorithm>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "zenta/core/utf8.h"
#include "zenta/qt/toolkit/qt_cell_action_button.h"
#include "zenta/qt/toolkit/qt_offer_list.h"
#include "zenta/qt/toolkit/accessible_grid.h"
#include "zenta/qt/toolkit/grid_engine_model.h"
#include "zenta/qt/toolkit/qt_grid_delegate.h"
#include "zenta/qt/toolkit/ui_text.h"
#include "zenta/qt/toolkit/key_mapping.h"
#include "zenta/qt/toolkit/twips_layout.h"

namespace zenta::qt {

// The footer row: each visible column's footer text under the column, following its width and
// the horizontal scroll.
class GridFooter : public QWidget {
 public:
  GridFooter(QtGridView& view, const platform::GridEngine& engine) : QWidget(&view), view_(view), engine_(engine) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const platform::GridColors& colors = engine_.Colors();
    const QColor back = colors.footer_back ? ToQColor(*colors.footer_back, palette()) : palette().color(QPalette::Button);
    const QColor fore = colors.footer_fore  ? ToQColor(*colors.footer_fore, palette())
                        : colors.footer_back ? ReadableTextOn(back)
                                             : palette().color(QPalette::ButtonText);
    painter.fillRect(rect(), back);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, 0, width(), 0);
    for (int column = 0; column < engine_.ColumnCount(); ++column) {
      if (view_.isColumnHidden(column)) continue;
      const int left = view_.columnViewportPosition(column);
      const QRect cell(left, 0, view_.columnWidth(column), height());
      painter.setPen(palette().color(QPalette::Mid));
      painter.drawLine(cell.right(), 0, cell.right(), height());
      const platform::GridColumn& description = engine_.Column(column);
      if (description.footer_text.empty()) continue;
      const bool right = description.kind == platform::ColumnKind::Number;
      painter.setPen(fore);
      painter.drawText(cell.adjusted(3, 0, -3, 0), (right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter,
                       right ? LocalAmountText(UiText(description.footer_text), locale())
                             : UiText(description.footer_text));
    }
  }

 private:
  QtGridView& view_;
  const platform::GridEngine& engine_;
};

QtGridView::QtGridView(QWidget* parent, const platform::WidgetSpec& definition, int column_count)
    : QTableView(parent), QtWidgetBase(*this, definition),
      engine_(std::make_unique<platform::GridEngine>(*this, column_count)) {
  InstallAccessibleGrids();
  model_ = new GridEngineModel(this, *engine_);
  setModel(model_);
  setItemDelegate(new GridCellDelegate(this, *engine_));
  footer_ = new GridFooter(*this, *engine_);
  footer_->hide();
  cell_action_ = new CellActionButton(*this, *engine_);
  connect(horizontalHeader(), &QHeaderView::sectionResized, footer_, qOverload<>(&QWidget::update));
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, footer_, qOverload<>(&QWidget::update));
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
  // A bold current-column caption would need more room than the column has.
  horizontalHeader()->setHighlightSections(false);
  // A long caption is cut at its end, never at its start.
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QtGridView::~QtGridView() = default;

void QtGridView::EditorOpened() {
  viewport()->update();
  cell_action_->Refresh();
}

void QtGridView::EditorClosed() {
  viewport()->update();
  cell_action_->Refresh();
}

void QtGridView::ShowOffers(const std::vector<std::string>& offers, int current) {
  if (!offers_ && offers.empty()) return;
  if (!offers_) offers_ = new OfferList(*this);
  offers_->Show(offers, current);
}

void QtGridView::OnOfferClicked(std::function<void(int offer)> handler) {
  if (!offers_) offers_ = new OfferList(*this);
  offers_->SetClickHandler(std::move(handler));
}

int QtGridView::ToTwips(int pixels) const { return logicalDpiY() > 0 ? pixels * 1440 / logicalDpiY() : pixels * 15; }

int QtGridView::FirstRowTop() const { return Rect().top + ToTwips(horizontalHeader()->height()); }

int QtGridView::RowHeight() const { return ToTwips(verticalHeader()->defaultSectionSize()); }

void QtGridView::RowsChanged() {
  model_->RowsChanged();
  CurrentCellChanged();
}

void QtGridView::RowChanged(int row) { model_->RowChanged(row - engine_->FirstRow()); }

void QtGridView::ColumnsChanged() {
  model_->ColumnsChanged();
  ApplyColors();
  for (int column = 0; column < engine_->ColumnCount(); ++column) {
    setColumnHidden(column, !engine_->Column(column).visible);
  }
  FitColumns();
  updateGeometries();
  footer_->update();
  viewport()->update();
  // Shown or renamed columns may need a wider control.
  if (auto* container = dynamic_cast<TwipsContainer*>(parentWidget())) container->Relayout();
}

void QtGridView::FitColumns() {
  // A column whose caption does not fit its drawn width takes what room the grid has to spare,
  // in column order; a column without a width keeps room for its caption. Only the captions are
  // measured, never the rows.
  QHeaderView& header = *horizontalHeader();
  std::vector<std::pair<int, int>> drawn;
  int slack = viewport()->width();
  for (int column = 0; column < engine_->ColumnCount(); ++column) {
    const platform::GridColumn& description = engine_->Column(column);
    if (!description.visible) continue;
    if (description.width <= 0) {
      slack -= header.sectionSizeHint(column);
      continue;
    }
    drawn.emplace_back(column, description.width * logicalDpiX() / 1440);
    slack -= drawn.back().second;
  }
  for (const auto& [column, width] : drawn) {
    const int grow = std::clamp(header.sectionSizeHint(column) - width, 0, std::max(slack, 0));
    slack -= grow;
    setColumnWidth(column, width + grow);
  }
}

int QtGridView::CaptionsWidth() const {
  const QHeaderView& header = *horizontalHeader();
  int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  for (int column = 0; column < engine_->ColumnCount(); ++column) {
    const platform::GridColumn& description = engine_->Column(column);
    if (!description.visible) continue;
    width += std::max(description.width * logicalDpiX() / 1440, header.sectionSizeHint(column));
  }
  return width;
}

void QtGridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitColumns();
}

bool QtGridView::HasFooter() const {
  for (int column = 0; column < engine_->ColumnCount(); ++column) {
    if (!engine_->Column(column).footer_text.empty()) return true;
  }
  return false;
}

void QtGridView::ApplyColors() {
  const platform::GridColors& colors = engine_->Colors();
  if (!colors.header_back && !colors.header_fore) {
    horizontalHeader()->setStyleSheet(QString());
    return;
  }
  const QPalette p = palette();
  QString style = QStringLiteral("QHeaderView::section {");
  if (colors.header_back) style += QStringLiteral(" background-color: %1;").arg(ToQColor(*colors.header_back, p).name());
  const QColor fore = colors.header_fore ? ToQColor(*colors.header_fore, p) : ReadableTextOn(ToQColor(*colors.header_back, p));
  style += QStringLiteral(" color: %1;").arg(fore.name());
  style += QStringLiteral(" border: 0px; border-right: 1px solid palette(mid); border-bottom: 1px solid palette(mid); }");
  horizontalHeader()->setStyleSheet(style);
}

void QtGridView::updateGeometries() {
  QTableView::updateGeometries();
  if (!footer_) return;  // called while the table is still being set up
  // The table lays out its headers and sets the viewport's margins; the footer takes a row's
  // height off the bottom.
  const bool footer = HasFooter();
  const int height = footer ? verticalHeader()->defaultSectionSize() : 0;
  const QMargins margins = viewportMargins();
  if (margins.bottom() != height) setViewportMargins(margins.left(), margins.top(), margins.right(), height);
  footer_->setVisible(footer);
  if (footer) {
    const QRect area = viewport()->geometry();
    footer_->setGeometry(area.left(), area.bottom() + 1, area.width(), height);
  }
}

void QtGridView::CurrentCellChanged() {
  if (moving_) return;
  QScopedValueRollback<bool> guard(moving_, true);
  std::optional<int> row = engine_->CurrentRow();
  if (!row) return;
  QModelIndex index = model_->index(*row - engine_->FirstRow(), engine_->CurrentColumn());
  // Scrolling lays the rows out at once; a cursor that did not move (rows added under it, a
  // host adding invoices in a loop) leaves that to the next paint.
  if (index.isValid() && index != currentIndex()) {
    setCurrentIndex(index);
    scrollTo(index);
  }
  viewport()->update();
  cell_action_->Refresh();
}

void QtGridView::Post(std::function<void()> action) {
  QPointer<QtGridView> self(this);
  QMetaObject::invokeMethod(
      this, [self, action = std::move(action)] { if (self) action(); }, Qt::QueuedConnection);
}

void QtGridView::keyPressEvent(QKeyEvent* event) {
  // The host may close its form from an event the key raises, this grid with it.
  const QPointer<QtGridView> self(this);
  platform::KeyDown key = ToKeyDown(*event);
  engine_->KeyDown(key);
  if (!self || key.key_code == 0) {
    event->accept();
    return;
  }
  if (key.key_code == platform::keys::kEscape) {
    // Nothing to abandon: the window's cancel button hears it.
    event->ignore();
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
      if (!self) break;
    }
  }
  event->accept();
}

int QtGridView::VisibleRows() const {
  return viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize());
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

void QtGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  // QTableView would number the cell counting hidden columns and the header row its own way.
  QAbstractItemView::currentChanged(current, previous);
  if (!QAccessible::isActive() || !hasFocus()) return;
  const int child = AccessibleChildIndex(*this, current);
  if (child < 0) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(child);
  QAccessible::updateAccessibility(&event);
}

void QtGridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  // The selection is the current cell, announced above; QTableView's events would number it
  // counting hidden columns.
  QAbstractItemView::selectionChanged(selected, deselected);
}

bool QtGridView::focusNextPrevChild(bool next) { return QWidget::focusNextPrevChild(next); }

bool QtGridView::event(QEvent* event) {
  // The header's colours are written out when applied; a new theme writes them again.
  if (event->type() == QEvent::PaletteChange) ApplyColors();
  // Qt moves the focus on Tab before the widget sees the key; the engine decides first whether
  // Tab moves to the next cell or leaves the grid.
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
    if (tab && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
      keyPressEvent(key);
      return true;
    }
  }
  return QTableView::event(event);
}

}  // namespace zenta::qt
