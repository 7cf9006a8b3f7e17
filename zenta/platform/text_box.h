#pragma once

#include <functional>
#include <string>

#include "zenta/core/ole_color.h"
#include "zenta/platform/keys.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

class TextBox : public Widget {
 public:
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor color) = 0;
  // Each typed character passes through this filter before it reaches the text.
  virtual void OnKeyPress(std::function<void(KeyPress&)> filter) = 0;
};

}  // namespace zenta::platform
