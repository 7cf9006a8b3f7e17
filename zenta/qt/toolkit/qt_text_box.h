#pragma once

#include <QLineEdit>
#include <functional>

#include "zenta/platform/text_box.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

// A single-line text box whose typed characters (Backspace and Enter included, as 8 and 13)
// pass the control's key-press filter, which may replace or discard each one. Pasted text is
// taken as it is. Enter is left to the control and the form around it.
class QtTextBox : public QLineEdit, public QtWidgetBase<platform::TextBox> {
 public:
  QtTextBox(QWidget* parent, const platform::WidgetSpec& definition);

  std::string Text() const override { return FromQString(text()); }
  void SetText(const std::string& text) override { setText(ToQString(text)); }
  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override;
  void OnKeyPress(std::function<void(platform::KeyPress&)> filter) override { filter_ = std::move(filter); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  OleColor back_color_ = colors::kWindowBackground;
  std::function<void(platform::KeyPress&)> filter_;
};

}  // namespace zenta::qt
