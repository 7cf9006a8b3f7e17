#pragma once

#include <QCheckBox>

#include "zenta/platform/check_box.h"
#include "zenta/qt/toolkit/qt_widget_base.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

// A check box with states 0 (unchecked), 1 (checked) and 2 (grayed). Its click notification
// runs for the user's clicks and for program changes of the state alike. Only the program
// grays it: a click on a grayed box checks it, as on a two-state box.
class QtCheckBox : public QCheckBox, public QtWidgetBase<platform::CheckBox> {
 public:
  QtCheckBox(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption);

  int State() const override;
  void SetState(int state) override;
  void SetCaption(const std::string& caption) override { setText(UiText(caption)); }
  void OnClick(platform::Callback callback) override { on_click_ = std::move(callback); }

 protected:
  void nextCheckState() override;

 private:
  platform::Callback on_click_;
};

}  // namespace zenta::qt
