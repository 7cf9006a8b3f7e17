#include "zenta/platform/headless/label_widget.h"

namespace zenta::headless {

LabelWidget::LabelWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, std::string caption)
    : WidgetBase(form, surface, definition), caption_(std::move(caption)) {}

}  // namespace zenta::headless
