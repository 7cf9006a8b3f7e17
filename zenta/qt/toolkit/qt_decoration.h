#pragma once

#include <QFrame>
#include <QGroupBox>

#include "zenta/qt/toolkit/qt_widget_base.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

// A frame with an optional caption, drawn behind the widgets it groups; it takes no focus.
class QtFrame : public QGroupBox, public QtWidgetBase<platform::Widget> {
 public:
  QtFrame(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
      : QGroupBox(UiText(caption), parent), QtWidgetBase(*this, definition) {
    setFocusPolicy(Qt::NoFocus);
  }
};

// A plain rectangle drawn behind other widgets; it takes no focus and no input.
class QtShape : public QFrame, public QtWidgetBase<platform::Widget> {
 public:
  QtShape(QWidget* parent, const platform::WidgetSpec& definition) : QFrame(parent), QtWidgetBase(*this, definition) {
    setFrameShape(QFrame::Box);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }
};

}  // namespace zenta::qt
