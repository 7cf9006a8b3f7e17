#pragma once

#include <string>

#include "zenta/platform/headless/widget_base.h"
#include "zenta/platform/label.h"

namespace zenta::headless {

// A caption; it never takes the focus.
class LabelWidget : public WidgetBase<platform::Label> {
 public:
  LabelWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, std::string caption);

  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  bool Focusable() const override { return false; }

 private:
  std::string caption_;
};

}  // namespace zenta::headless
