#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/date.h"

namespace zenta {

// The digits typed into the "____/__/__" mask: up to eight, filling its prompts in order (the
// slashes are the mask's own). Every date field and date grid cell types through it.
class DateMask {
 public:
  DateMask() = default;
  // The digits of `text` in order ("2026/02/01", "2026/0_/__", "20260201"), at most eight.
  static DateMask FromText(std::string_view text);
  static DateMask Of(std::optional<Date> value);

  // A digit fills the next prompt (false when it is not a digit or the mask is full).
  bool Type(char32_t character);
  // Clears the last digit typed.
  void Backspace();
  void Clear() { digits_.clear(); }

  bool IsBlank() const { return digits_.empty(); }
  // The text shown: the mask with its prompts filled so far ("2026/0_/__").
  std::string Text() const;
  // Where the next digit goes in Text().
  int Caret() const;
  // The date, when all eight digits make one.
  std::optional<Date> Value() const;

 private:
  std::string digits_;
};

}  // namespace zenta
