#pragma once

#include <string>

#include "zenta/platform/headless/widget_base.h"

namespace zenta::headless {

// A frame or shape: placed and shown, never focused, no input.
class DecorationWidget : public WidgetBase<platform::Widget> {
 public:
  DecorationWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, std::string caption)
      : WidgetBase(form, surface, definition), caption_(std::move(caption)) {}

  bool Focusable() const override { return false; }
  const std::string& Caption() const { return caption_; }

 private:
  std::string caption_;
};

}  // namespace zenta::headless
