#pragma once

#include <functional>
#include <string>
#include <vector>

#include "zenta/core/ole_color.h"
#include "zenta/platform/check_box.h"
#include "zenta/platform/date_edit.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/keys.h"
#include "zenta/platform/label.h"
#include "zenta/platform/number_edit.h"
#include "zenta/platform/text_box.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// The control's own area on the host's form. The control creates its children through it, in
// tab order, and owns none of them: the surface does, for the control's lifetime.
class ControlSurface {
 public:
  virtual ~ControlSurface() = default;

  virtual NumberEdit& AddNumberEdit(const WidgetSpec& definition) = 0;
  virtual DateEdit& AddDateEdit(const WidgetSpec& definition) = 0;
  virtual TextBox& AddTextBox(const WidgetSpec& definition) = 0;
  virtual CheckBox& AddCheckBox(const WidgetSpec& definition, const std::string& caption) = 0;
  virtual Label& AddLabel(const WidgetSpec& definition, const std::string& caption) = 0;
  virtual Grid& AddGrid(const WidgetSpec& definition, int column_count) = 0;

  // Every child, in creation order.
  virtual std::vector<Widget*> Children() const = 0;
  // The child that holds the focus, or nullptr when the focus is outside the control.
  virtual Widget* ActiveChild() const = 0;
  std::string ActiveChildName() const {
    const Widget* active = ActiveChild();
    return active ? active->Name() : std::string();
  }

  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor color) = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;

  // The size the host gives the control, in twips.
  virtual int Width() const = 0;
  virtual int Height() const = 0;
  virtual void SetWidth(int twips) = 0;
  virtual void SetHeight(int twips) = 0;

  // False while the host is a form designer.
  virtual bool UserMode() const = 0;

  // Sees every key-down before the focused child; key_code 0 discards it.
  virtual void OnKeyDown(std::function<void(KeyDown&)> handler) = 0;
  virtual void OnResize(Callback callback) = 0;
  virtual void OnShown(Callback callback) = 0;
};

}  // namespace zenta::platform
