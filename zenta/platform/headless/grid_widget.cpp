#include "zenta/platform/headless/grid_widget.h"

namespace zenta::headless {

GridWidget::GridWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, int column_count)
    : WidgetBase(form, surface, definition), engine_(*this, column_count) {}

void GridWidget::Post(std::function<void()> action) { form_.Post(std::move(action)); }

}  // namespace zenta::headless
