#pragma once

#include "zenta/platform/keys.h"
#include "zenta/platform/widget.h"

namespace zenta::headless {

class Form;
class Surface;
class Dialog;

// What the Form needs of every headless widget to route focus and keys to it.
class InputNode {
 public:
  virtual ~InputNode() = default;

  virtual platform::Widget& AsWidget() = 0;
  virtual bool Focusable() const { return true; }
  // Keys the widget handles itself; setting key_code to 0 consumes the key.
  virtual void HandleKeyDown(platform::KeyDown& /*key*/) {}
  virtual void HandleCharacter(char32_t /*character*/) {}
  virtual void FocusGained() {}
  virtual void FocusLost() {}

  Surface* surface() const { return surface_; }
  // The dialog the widget belongs to, nullptr for a control's or the host's widgets.
  Dialog* dialog() const { return dialog_; }
  void AttachToDialog(Dialog* dialog) { dialog_ = dialog; }
  bool tab_stop() const { return tab_stop_; }

 protected:
  InputNode(Form& form, Surface* surface, bool tab_stop) : form_(form), surface_(surface), tab_stop_(tab_stop) {}
  Form& form_;

 private:
  Surface* surface_;
  Dialog* dialog_ = nullptr;
  bool tab_stop_;
};

}  // namespace zenta::headless
