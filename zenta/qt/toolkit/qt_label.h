#pragma once

#include <QLabel>

#include "zenta/platform/label.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

class QtLabel : public QLabel, public QtWidgetBase<platform::Label> {
 public:
  QtLabel(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
      : QLabel(ToQString(caption), parent), QtWidgetBase(*this, definition) {}

  std::string Caption() const override { return FromQString(text()); }
  void SetCaption(const std::string& caption) override { setText(ToQString(caption)); }
};

}  // namespace zenta::qt
