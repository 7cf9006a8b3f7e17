#pragma once

#include <QLineEdit>
#include <QWidget>
#include <optional>

#include "zenta/platform/date_edit.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

class QCalendarWidget;
class QFrame;
class QToolButton;

namespace zenta::qt {

// A date field that can be empty, which QDateEdit cannot be: a line edit typed through the mask
// "____/__/__" ("yyyy/mm/dd"), all selected on entry so that the first digit starts a new date,
// and a drop-down calendar (F4, Alt+Down or the button) with English day names whose title bar
// takes the control's title colour. F2 clears the date and F3 puts today's. The value is a date
// only once the eight digits form one. Focus-lost runs when the user leaves the field, not when
// the calendar, a message box or another window takes the focus for a moment. Leaving it with a
// partial or impossible date puts back the last date it held (or empties it) and tints the
// field until the next edit; a date set from outside years 100 to 9999 is refused with
// Date::kOutOfRange and changes nothing.
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
  QWidget& CalendarTitleBar();
  void OpenCalendar();
  bool CalendarOpen() const;
  // Puts the digits of `text` through the mask as if typed over the whole field. Away from the
  // focus the field is then left at once, so its rules run as after typing; with the focus they
  // run when the user leaves. For assistive tools.
  void TypeOver(const QString& text);
  // The typed text was refused on leaving; shown as a tinted field and in the tooltip.
  bool Refused() const { return refused_; }

 protected:
  QWidget& FocusTarget() override { return *editor_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PickDate(const QDate& date);
  void Leave();
  void SetRefused(bool refused);

  QLineEdit* editor_;
  QToolButton* button_;
  QFrame* popup_;
  QCalendarWidget* calendar_;
  OleColor title_color_ = 0;
  std::optional<Date> last_valid_;
  bool refused_ = false;
  QString tooltip_;
  platform::Callback on_focus_lost_;
};

}  // namespace zenta::qt
