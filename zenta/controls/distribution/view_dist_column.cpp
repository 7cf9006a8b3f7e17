#include "zenta/controls/distribution/view_dist_column.h"

namespace zenta {

platform::GridColumn ViewDistColumn(int width) {
  platform::GridColumn column;
  column.caption = "View Dist";
  column.kind = platform::ColumnKind::Button;
  column.width = width;
  column.button_text = "View";
  column.button_tooltip = "View the G/L distribution";
  return column;
}

}  // namespace zenta
