#pragma once

#include <functional>
#include <string>

#include "zenta/core/ole_color.h"

namespace zenta::platform {

// Where a child sits inside its control, in twips (1/1440 inch). Toolkits map twips to their
// own units; the control logic never sees pixels.
struct TwipsRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// What a control asks of a toolkit when it creates a child widget. Children are created in
// tab order.
struct WidgetSpec {
  std::string name;     // the child's name ("txtGSTAmount"); unique within the control
  TwipsRect rect;
  std::string tooltip;  // may be empty
  bool tab_stop = true;
};

using Callback = std::function<void()>;

// What every child widget offers. Notifications are callbacks; a widget holds at most one
// callback per notification (the control that created it).
class Widget {
 public:
  virtual ~Widget() = default;

  virtual const std::string& Name() const = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  // Moves the focus here. Toolkits ignore it for a disabled or hidden widget.
  virtual void SetFocus() = 0;
  virtual bool HasFocus() const = 0;
  // Placement inside the control or dialog, in twips.
  virtual TwipsRect Rect() const = 0;
  virtual void SetRect(const TwipsRect& rect) = 0;
};

}  // namespace zenta::platform
