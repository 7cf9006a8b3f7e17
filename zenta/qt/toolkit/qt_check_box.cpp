#include "zenta/qt/toolkit/qt_check_box.h"

namespace zenta::qt {

QtCheckBox::QtCheckBox(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
    : QCheckBox(UiText(caption), parent), QtWidgetBase(*this, definition) {
  connect(this, &QCheckBox::clicked, this, [this] {
    if (on_click_) on_click_();
  });
}

int QtCheckBox::State() const {
  switch (checkState()) {
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
    default: return 0;
  }
}

void QtCheckBox::SetState(int state) {
  if (state != 1 && state != 2) state = 0;
  if (state == State()) return;
  setCheckState(state == 1 ? Qt::Checked : state == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
  if (on_click_) on_click_();
}

void QtCheckBox::nextCheckState() { setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked); }

}  // namespace zenta::qt
