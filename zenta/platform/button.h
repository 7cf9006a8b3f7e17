#pragma once

#include <string>

#include "zenta/platform/widget.h"

namespace zenta::platform {

// A command button. "&" in the caption marks the mnemonic (Alt+letter clicks it).
class Button : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  virtual void OnClick(Callback callback) = 0;
};

}  // namespace zenta::platform
