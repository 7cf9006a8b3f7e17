#pragma once

#include <QLineEdit>
#include <optional>

#include "zenta/core/number_format.h"
#include "zenta/platform/number_edit.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {


// A money field on a QLineEdit, never on a spin box: its text is parsed as an exact Currency with
// "." as the point whatever the locale. Typing and pasting obey the edit format (nine integer
// digits, two decimals, a leading "-"); the locale's decimal key types ".", and blanks, "$" and
// grouping commas in pasted text are dropped. Away from the focus the field shows its value
// through the display format; focused, it shows the text as typed, all selected on entry.
// F2 clears the value. F4 does nothing: there is no calculator to drop down, and the key must
// not reach a surrounding widget either. Focus-lost runs only when the user really leaves the
// field, not when a message box, popup or another window takes the focus for a moment. Away
// from the focus the point is shown as the locale's ("12,50" under fr_CA); the value and Text()
// keep ".".
class QtNumberEdit : public QLineEdit, public QtWidgetBase<platform::NumberEdit> {
 public:
  QtNumberEdit(QWidget* parent, const platform::WidgetSpec& definition);

  std::optional<Currency> Value() const override { return value_; }
  void SetValue(std::optional<Currency> value) override;
  std::string Text() const override { return raw_; }
  // From entering the field until really leaving it; a message box taking the focus meanwhile
  // does not end it.
  bool Editing() const override { return showing_raw_ || leaving_; }
  void SetText(const std::string& text) override;
  void SetDisplayFormat(const std::string& pattern) override;
  void SetEditFormat(const std::string& pattern) override;
  std::string DisplayText() const override;
  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override;
  void OnFocusGained(platform::Callback callback) override { on_focus_gained_ = std::move(callback); }
  void OnFocusLost(platform::Callback callback) override { on_focus_lost_ = std::move(callback); }

  // Runs the focus-lost rule now on text the user typed and has not left yet, as leaving would;
  // false when there was no such edit. For a host that reads values from a shortcut that does
  // not take the focus.
  bool FinishEdit();

  // `text` with pasted decorations dropped and the locale's point made "." (the caret at
  // `position` kept among the characters that stay), if the result fits the edit format or at
  // least shortens a longer text the program put there; nullopt when the edit is refused.
  std::optional<QString> AcceptableEdit(const QString& text, int& position) const;
  // Types one character that has passed every filter already, as at the caret.
  void TypeCharacter(char32_t character);
  // Puts `text` in the field as if typed over all of it (false when the edit format refuses
  // it). Away from the focus the field is then left at once, so the focus-lost rule runs as
  // after typing; with the focus it runs when the user leaves. For assistive tools.
  bool TypeOver(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Counts {
    int integer = 0;
    int fraction = 0;
    bool well_formed = true;
  };
  Counts CountDigits(const QString& text) const;
  void Show();
  void TypedTextChanged(const QString& text);

  std::optional<Currency> value_;
  std::string raw_;
  std::string display_format_{formats::kAmountDisplay};
  int integer_digits_ = 9;
  int decimals_ = 2;
  OleColor back_color_ = colors::kWindowBackground;
  bool showing_raw_ = false;
  bool leaving_ = false;
  platform::Callback on_focus_gained_;
  platform::Callback on_focus_lost_;
};

}  // namespace zenta::qt
