#pragma once

#include <string>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/input_node.h"
#include "zenta/platform/widget.h"

namespace zenta::headless {

// The state every headless widget shares — name, enabled, visible, focus — on top of the
// platform interface it implements.
template <class Interface>
class WidgetBase : public Interface, public InputNode {
 public:
  WidgetBase(Form& form, Surface* surface, const platform::WidgetSpec& definition)
      : InputNode(form, surface, definition.tab_stop), name_(definition.name), tooltip_(definition.tooltip), rect_(definition.rect) {}

  platform::Widget& AsWidget() override { return *this; }
  const std::string& Name() const override { return name_; }
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override {
    enabled_ = enabled;
    if (!enabled) form_.FocusableChanged();
  }
  bool Visible() const override { return visible_; }
  void SetVisible(bool visible) override {
    visible_ = visible;
    if (!visible) form_.FocusableChanged();
  }
  void SetFocus() override { form_.SetFocus(this); }
  bool HasFocus() const override { return form_.Focused() == this; }

  const std::string& Tooltip() const { return tooltip_; }
  platform::TwipsRect Rect() const override { return rect_; }
  void SetRect(const platform::TwipsRect& rect) override { rect_ = rect; }

 private:
  std::string name_;
  std::string tooltip_;
  platform::TwipsRect rect_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace zenta::headless
