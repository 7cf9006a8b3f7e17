#pragma once

#include <QLabel>

#include "zenta/platform/label.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

// A caption, shown as plain text: a caption that happens to look like markup is not rendered.
class QtLabel : public QLabel, public QtWidgetBase<platform::Label> {
 public:
  QtLabel(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
      : QLabel(parent), QtWidgetBase(*this, definition) {
    setTextFormat(Qt::PlainText);
    setText(ToQString(caption));
  }

  std::string Caption() const override { return FromQString(text()); }
  void SetCaption(const std::string& caption) override { setText(ToQString(caption)); }
};

}  // namespace zenta::qt
