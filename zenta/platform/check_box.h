#pragma once

#include <string>

#include "zenta/platform/widget.h"

namespace zenta::platform {

// A check box. Its state is 0 (unchecked), 1 (checked) or 2 (grayed). Setting the state, by
// the user or by the program, sends the click notification when the state changes.
class CheckBox : public Widget {
 public:
  virtual int State() const = 0;
  virtual void SetState(int state) = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  virtual void OnClick(Callback callback) = 0;
};

}  // namespace zenta::platform
