#pragma once

#include <string>

#include "zenta/platform/widget.h"

namespace zenta::platform {

class Label : public Widget {
 public:
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
};

}  // namespace zenta::platform
