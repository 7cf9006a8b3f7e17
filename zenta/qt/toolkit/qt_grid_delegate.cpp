#include "zenta/qt/toolkit/qt_grid_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

#include "zenta/core/utf8.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {
constexpr int kTextMargin = 3;

// The first `count` code points of UTF-8 text, as Qt measures them.
QString Prefix(const std::u32string& text, int count) {
  const auto n = static_cast<std::size_t>(std::clamp(count, 0, static_cast<int>(text.size())));
  return QString::fromUcs4(text.data(), static_cast<qsizetype>(n));
}
}  // namespace

void GridCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int column = index.column();
  if (column < 0 || column >= engine_.ColumnCount()) return;
  if (engine_.Column(column).kind == platform::ColumnKind::Button) {
    // No caption where there is nothing to press yet (the row for a new invoice before
    // anything is typed in it): a blank button would invite a click that does nothing.
    if (index.data(Qt::DisplayRole).toString().isEmpty()) {
      QStyledItemDelegate::paint(painter, option, index);
    } else {
      PaintButton(painter, option, index);
    }
    return;
  }
  const std::optional<int> current = engine_.CurrentRow();
  if (engine_.IsEditing() && current && engine_.BookmarkAt(index.row()) == *current && engine_.CurrentColumn() == column) {
    PaintEdit(painter, option, index);
    return;
  }
  QStyledItemDelegate::paint(painter, option, index);
}

void GridCellDelegate::PaintButton(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionButton button;
  button.rect = option.rect.adjusted(1, 1, -1, -1);
  button.text = index.data(Qt::DisplayRole).toString();
  button.state = option.state & (QStyle::State_Enabled | QStyle::State_HasFocus);
  button.state |= QStyle::State_Raised;
  button.palette = option.palette;
  button.fontMetrics = option.fontMetrics;
  const QWidget* widget = option.widget;
  QStyle* style = widget ? widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_PushButton, &button, painter, widget);
}

void GridCellDelegate::PaintEdit(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const std::u32string text = utf8::Decode(engine_.EditText());
  const QString shown = QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
  const QRect cell = option.rect;
  painter->save();
  painter->fillRect(cell, option.palette.base());
  painter->setPen(option.palette.color(QPalette::Highlight));
  painter->drawRect(cell.adjusted(0, 0, -1, -1));

  const QFontMetrics metrics(option.font);
  const bool right = engine_.Column(index.column()).kind == platform::ColumnKind::Number;
  const int text_width = metrics.horizontalAdvance(shown);
  const int left = right ? cell.right() - kTextMargin - text_width : cell.left() + kTextMargin;
  const int baseline = cell.top() + (cell.height() + metrics.ascent() - metrics.descent()) / 2;
  auto x_at = [&](int position) { return left + metrics.horizontalAdvance(Prefix(text, position)); };

  const int start = engine_.SelectionStart();
  const int length = engine_.SelectionLength();
  if (length > 0) {
    const QRect selected(QPoint(x_at(start), cell.top() + 2), QPoint(x_at(start + length) - 1, cell.bottom() - 2));
    painter->fillRect(selected, option.palette.highlight());
  }
  painter->setFont(option.font);
  painter->setPen(option.palette.color(QPalette::Text));
  painter->drawText(QPoint(left, baseline), shown);
  if (length > 0) {
    painter->setPen(option.palette.color(QPalette::HighlightedText));
    painter->drawText(QPoint(x_at(start), baseline), shown.mid(Prefix(text, start).size(), Prefix(text, start + length).size() - Prefix(text, start).size()));
  } else {
    const int caret = x_at(start);
    painter->setPen(option.palette.color(QPalette::Text));
    painter->drawLine(caret, cell.top() + 3, caret, cell.bottom() - 3);
  }
  painter->restore();
}

}  // namespace zenta::qt
