#include "zenta/qt/toolkit/grid_engine_model.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QStyle>
#include <QWidget>

#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

// The views' count, changed only through the signals that tell them.
int GridEngineModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shown_rows_; }

int GridEngineModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : engine_.ColumnCount(); }

QVariant GridEngineModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= engine_.DisplayRowCount()) return {};
  const int row = engine_.BookmarkAt(index.row());
  const int column = index.column();
  switch (role) {
    case Qt::DisplayRole:
      return ShownText(row, column);
    case Qt::AccessibleTextRole:
      // A button cell is announced by what it does; others with their column: "Amount: 45.50".
      if (IsButton(row, column)) return UiText(engine_.Column(column).button_tooltip);
      return UiText(engine_.Column(column).caption) + QStringLiteral(": ") + ShownText(row, column);
    case Qt::ToolTipRole:
      if (IsButton(row, column)) return UiText(engine_.Column(column).button_tooltip);
      return HintText(row, column);
    case Qt::AccessibleDescriptionRole: {
      const QString hint = HintText(row, column);
      const QString caption = UiText(engine_.Column(column).caption);
      return hint.isEmpty() ? caption : caption + QStringLiteral(": ") + hint;
    }
    case Qt::DecorationRole:
      if (!engine_.Hint(row, column).warning) return {};
      return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    case Qt::ForegroundRole: {
      const platform::CellAppearance appearance = engine_.Appearance(row, column);
      if (appearance.fore_color) return ToQColor(*appearance.fore_color, Palette());
      // On a background chosen without a text colour the theme's text may not read.
      if (appearance.back_color) return ReadableTextOn(ToQColor(*appearance.back_color, Palette()));
      return {};
    }
    case Qt::BackgroundRole: {
      if (auto color = engine_.Appearance(row, column).back_color) return ToQColor(*color, Palette());
      if (engine_.Colors().alternate_rows && index.row() % 2 == 0) return Palette().color(QPalette::AlternateBase);
      return {};
    }
    case Qt::TextAlignmentRole: {
      auto kind = engine_.Column(column).kind;
      bool right = kind == platform::ColumnKind::Number;
      return QVariant::fromValue(Qt::Alignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    }
    default:
      return {};
  }
}

QString GridEngineModel::HintText(int row, int column) const {
  const std::string text = engine_.Hint(row, column).text;
  return text.empty() ? QString() : UiText(text);
}

bool GridEngineModel::IsButton(int row, int column) const {
  const platform::GridColumn& described = engine_.Column(column);
  return described.kind == platform::ColumnKind::Button && !described.button_tooltip.empty() && !engine_.IsAddNewRow(row);
}

QPalette GridEngineModel::Palette() const {
  const auto* view = qobject_cast<const QWidget*>(QObject::parent());
  return view ? view->palette() : QPalette();
}

QString GridEngineModel::ShownText(int row, int column) const {
  const platform::CellAppearance appearance = engine_.Appearance(row, column);
  // A button's text is the library's own, translated like its captions.
  if (engine_.Column(column).kind == platform::ColumnKind::Button) return UiText(appearance.text);
  QString text = ToQString(appearance.text);
  if (engine_.Column(column).kind != platform::ColumnKind::Number) return text;
  // The cell being typed in shows the keys as typed.
  if (engine_.IsEditing() && engine_.CurrentRow() == row && engine_.CurrentColumn() == column) return text;
  // The view's locale, which a host may set on the control.
  const auto* view = qobject_cast<const QWidget*>(QObject::parent());
  return LocalAmountText(text, view ? view->locale() : QLocale());
}

QVariant GridEngineModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= engine_.ColumnCount()) return {};
  // The tooltip shows a caption cut short by a narrow column.
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return UiText(engine_.Column(section).caption);
  return {};
}

void GridEngineModel::RowsChanged() {
  const int rows = engine_.DisplayRowCount();
  if (rows > shown_rows_) {
    beginInsertRows({}, shown_rows_, rows - 1);
    shown_rows_ = rows;
    endInsertRows();
  } else if (rows < shown_rows_) {
    beginRemoveRows({}, rows, shown_rows_ - 1);
    shown_rows_ = rows;
    endRemoveRows();
  }
  if (rows > 0 && columnCount() > 0) dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

void GridEngineModel::RowChanged(int display_row) {
  if (display_row < 0 || display_row >= rowCount()) return;
  dataChanged(index(display_row, 0), index(display_row, columnCount() - 1));
}

}  // namespace zenta::qt
