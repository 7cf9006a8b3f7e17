#pragma once

#include <optional>

#include "zenta/core/date.h"
#include "zenta/core/ole_color.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// A date edit that can hold no date. Shown and typed as "yyyy/mm/dd" through the mask
// "____/__/__"; it has a drop-down calendar whose title bar takes a colour.
class DateEdit : public Widget {
 public:
  virtual std::optional<Date> Value() const = 0;
  virtual void SetValue(std::optional<Date> value) = 0;
  // The text in the field, mask prompts included while incomplete ("2026/1_/__").
  virtual std::string Text() const = 0;

  virtual OleColor CalendarTitleColor() const = 0;
  virtual void SetCalendarTitleColor(OleColor color) = 0;

  virtual void OnFocusLost(Callback callback) = 0;
};

}  // namespace zenta::platform
