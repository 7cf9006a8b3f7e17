#pragma once

#include <QLabel>

#include "zenta/platform/label.h"
#include "zenta/qt/toolkit/qt_widget_base.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

// A caption, shown as plain text: a caption that happens to look like markup is not rendered.
class QtLabel : public QLabel, public QtWidgetBase<platform::Label> {
 public:
  QtLabel(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
      : QLabel(parent), QtWidgetBase(*this, definition) {
    setTextFormat(Qt::PlainText);
    SetCaption(caption);
  }

  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override {
    caption_ = caption;
    setText(UiText(caption));
  }

 private:
  std::string caption_;  // the control's own text; the shown one may be a translation
};

}  // namespace zenta::qt
