#include "zenta/qt/toolkit/qt_cell_action_button.h"

#include <QTableView>

#include "zenta/platform/grid_engine.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

CellActionButton::CellActionButton(QTableView& grid, platform::GridEngine& engine)
    : QToolButton(grid.viewport()), grid_(grid), engine_(engine) {
  setObjectName(QStringLiteral("cellAction"));
  setFocusPolicy(Qt::NoFocus);
  setText(QStringLiteral("="));
  setAutoRaise(false);
  hide();
  connect(this, &QToolButton::clicked, this, [this] {
    if (key_ == 0) return;
    platform::KeyDown key{key_, platform::kNoShift};
    engine_.KeyDown(key);
    Refresh();
  });
}

void CellActionButton::Refresh() {
  const platform::CellActionArgs action = engine_.CurrentCellAction();
  key_ = action.key;
  // Asked first: visualRect lays out a grid whose rows changed, which a host adding rows in a
  // loop must not pay for on every call.
  if (key_ == 0) {
    hide();
    return;
  }
  const QRect cell = grid_.visualRect(grid_.currentIndex());
  if (!cell.isValid()) {
    hide();
    return;
  }
  setToolTip(UiText(action.tooltip));
  setAccessibleName(UiText(action.tooltip));
  const int side = cell.height();
  // At the left: amounts stand at the right of their cells.
  setGeometry(cell.left(), cell.top(), side, side);
  show();
  raise();
}

}  // namespace zenta::qt
