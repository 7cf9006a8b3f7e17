#pragma once

#include "zenta/platform/grid_engine.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// A grid widget: a toolkit's view of a GridEngine. Controls drive it through Engine(); the
// widget itself only adds what every widget has (focus, enabled, visible, placement).
class Grid : public Widget {
 public:
  virtual GridEngine& Engine() = 0;
  virtual const GridEngine& Engine() const = 0;
  // The top of the first row and the height of a row, in twips, for placing a window just
  // below a row.
  virtual int FirstRowTop() const = 0;
  virtual int RowHeight() const = 0;
};

}  // namespace zenta::platform
