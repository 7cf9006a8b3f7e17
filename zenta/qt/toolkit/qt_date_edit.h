#pragma once

#include <QLineEdit>
#include <QWidget>
#include <optional>

#include "zenta/platform/date_edit.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

class QCalendarWidget;
class QToolButton;
class QFrame;

namespace zenta::qt {

// A date field that can be empty, which QDateEdit cannot: a line edit typed through the mask
// "____/__/__" with a drop-down calendar (F4 or the button) whose title bar takes the
// control's title colour. F2 clears the date; F3 puts today's.
class QtDateEdit : public QWidget, public QtWidgetBase<platform::DateEdit> {
 public:
  QtDateEdit(QWidget* parent, const platform::WidgetSpec& definition);

  std::optional<Date> Value() const override;
  void SetValue(std::optional<Date> value) override;
  std::string Text() const override;
  OleColor CalendarTitleColor() const override { return title_color_; }
  void SetCalendarTitleColor(OleColor color) override;
  void OnFocusLost(platform::Callback callback) override { on_focus_lost_ = std::move(callback); }

  QLineEdit& Editor() { return *editor_; }
  QCalendarWidget& Calendar() { return *calendar_; }
  void OpenCalendar();

 protected:
  QWidget& FocusTarget() override { return *editor_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* editor_;
  QToolButton* button_;
  QFrame* popup_;
  QCalendarWidget* calendar_;
  OleColor title_color_ = 0;
  platform::Callback on_focus_lost_;
};

}  // namespace zenta::qt
