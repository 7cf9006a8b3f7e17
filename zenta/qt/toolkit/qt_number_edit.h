#pragma once

#include <QLineEdit>
#include <optional>

#include "zenta/platform/number_edit.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

class QtArrayGrid;

// A money field on a QLineEdit, never on a spin box: the text is parsed as an exact Currency
// with "." as the point whatever the locale (the locale's decimal key types "."). Typing obeys
// the edit format (nine integer digits, two decimals, a leading "-"); away from the focus the
// field shows the value through its display format. F2 clears the value; F4 does nothing (there
// is no calculator to open). Focus-lost runs only when the user really leaves the field, not
// when a message box or popup takes the focus for a moment.
class QtNumberEdit : public QLineEdit, public QtWidgetBase<platform::NumberEdit> {
 public:
  QtNumberEdit(QWidget* parent, const platform::WidgetSpec& definition);

  std::optional<Currency> Value() const override { return value_; }
  void SetValue(std::optional<Currency> value) override;
  std::string Text() const override { return raw_; }
  void SetText(const std::string& text) override;
  void SetDisplayFormat(const std::string& pattern) override;
  void SetEditFormat(const std::string& pattern) override;
  std::string DisplayText() const override;
  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override;
  void OnFocusGained(platform::Callback callback) override { on_focus_gained_ = std::move(callback); }
  void OnFocusLost(platform::Callback callback) override { on_focus_lost_ = std::move(callback); }

  void AttachToGrid(QtArrayGrid* grid) { grid_ = grid; }
  // Whether `text` fits the edit format.
  bool FitsEditFormat(const QString& text) const;
  // Types one character as the user would, through the edit format.
  void TypeCharacter(char32_t character);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Show();
  void TypedTextChanged(const QString& text);

  std::optional<Currency> value_;
  std::string raw_;
  std::string display_format_ = "########0.00;-########0.00;;0.00";
  int integer_digits_ = 9;
  int decimals_ = 2;
  OleColor back_color_ = colors::kWindowBackground;
  bool showing_raw_ = false;
  QtArrayGrid* grid_ = nullptr;
  platform::Callback on_focus_gained_;
  platform::Callback on_focus_lost_;
};

}  // namespace zenta::qt
