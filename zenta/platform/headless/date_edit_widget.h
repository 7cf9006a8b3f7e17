#pragma once

#include <string>

#include "zenta/core/date_mask.h"
#include "zenta/platform/date_edit.h"
#include "zenta/platform/headless/widget_base.h"

namespace zenta::headless {

// A date edit in memory that can hold no date. Digits fill the mask "____/__/__" ("/" typed
// is skipped); the value is the date once the eight digits form one. Gaining the focus selects
// all, so the first digit typed starts a new date. F2 clears, F3 puts the form's today.
// Leaving the field with a partial or impossible date puts back the last date it held (or
// empties it) and marks the field Refused() until the next edit, the cue a screen shows. A date
// set from outside years 100 to 9999 is refused with Date::kOutOfRange and changes nothing.
class DateEditWidget : public WidgetBase<platform::DateEdit> {
 public:
  DateEditWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition);

  std::optional<Date> Value() const override;
  void SetValue(std::optional<Date> value) override;
  std::string Text() const override;
  OleColor CalendarTitleColor() const override { return title_color_; }
  void SetCalendarTitleColor(OleColor color) override { title_color_ = color; }
  void OnFocusLost(platform::Callback callback) override { on_focus_lost_ = std::move(callback); }

  bool Refused() const { return refused_; }

  void HandleKeyDown(platform::KeyDown& key) override;
  void HandleCharacter(char32_t character) override;
  void FocusGained() override;
  void FocusLost() override;

 private:
  DateMask mask_;
  // What the field held as a date before the user started on the current text.
  std::optional<Date> last_valid_;
  bool refused_ = false;
  bool all_selected_ = false;
  OleColor title_color_ = 0;
  platform::Callback on_focus_lost_;
};

}  // namespace zenta::headless
