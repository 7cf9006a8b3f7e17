#pragma once

#include <QToolButton>

class QTableView;

namespace zenta::platform {
class GridEngine;
}

namespace zenta::qt {

// The small button a grid shows at the right of its current cell when the cell offers a key
// for it (a fill key): clicking it presses that key in the grid. It never takes the focus.
class CellActionButton : public QToolButton {
 public:
  CellActionButton(QTableView& grid, platform::GridEngine& engine);

  // Shows, moves or hides the button for the current cell.
  void Refresh();

 private:
  QTableView& grid_;
  platform::GridEngine& engine_;
  int key_ = 0;
};

}  // namespace zenta::qt
