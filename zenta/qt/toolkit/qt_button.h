#pragma once

#include <QPushButton>

#include "zenta/platform/button.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

// A command button; "&" in the caption is Qt's mnemonic too, so Alt+letter clicks it. Enter on
// a focused button clicks it, as Space does, the way payers expect of a dialog's buttons.
class QtButton : public QPushButton, public QtWidgetBase<platform::Button> {
 public:
  QtButton(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption);

  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override;
  void OnClick(platform::Callback callback) override { on_click_ = std::move(callback); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  platform::Callback on_click_;
  std::string caption_;  // the control's own text; the shown one may be a translation
};

}  // namespace zenta::qt
