#pragma once

#include <optional>
#include <string>

#include "zenta/core/currency.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// A numeric edit. It holds a value (or none) and the text of the value. Setting the value
// writes its plain text ("1234", "12.5"); setting the text reads the value from it (none when
// the text is empty or not a number). While the field does not have the focus it shows the
// value through its display format; while the user types, the edit format limits the
// characters ("#########.##": nine integer digits, two decimals, a leading "-").
class NumberEdit : public Widget {
 public:
  virtual std::optional<Currency> Value() const = 0;
  virtual void SetValue(std::optional<Currency> value) = 0;
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  bool IsNull() const { return !Value().has_value(); }
  // The payer is in the field: leaving it will run its focus-lost handler on the text as typed.
  // A toolkit whose field keeps that state while a message box holds the focus says so here.
  virtual bool Editing() const { return HasFocus(); }

  virtual void SetDisplayFormat(const std::string& pattern) = 0;
  virtual void SetEditFormat(const std::string& pattern) = 0;
  // What a person sees when the field does not have the focus.
  virtual std::string DisplayText() const = 0;

  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor color) = 0;

  virtual void OnFocusGained(Callback callback) = 0;
  virtual void OnFocusLost(Callback callback) = 0;
};

}  // namespace zenta::platform
