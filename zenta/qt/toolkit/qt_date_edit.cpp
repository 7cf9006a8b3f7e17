#include "zenta/qt/toolkit/qt_date_edit.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include "zenta/core/date_format.h"

namespace zenta::qt {

QtDateEdit::QtDateEdit(QWidget* parent, const platform::WidgetSpec& definition)
    : QWidget(parent), QtWidgetBase(*this, definition), editor_(new QLineEdit(this)), button_(new QToolButton(this)),
      popup_(new QFrame(this, Qt::Popup)), calendar_(new QCalendarWidget(popup_)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(editor_);
  layout->addWidget(button_);
  editor_->setObjectName(ToQString(definition.name) + "_text");
  editor_->setInputMask("9999/99/99;_");
  editor_->installEventFilter(this);
  setFocusProxy(editor_);
  button_->setArrowType(Qt::DownArrow);
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setToolTip("Calendar (F4)");
  connect(button_, &QToolButton::clicked, this, [this] { OpenCalendar(); });

  auto* popup_layout = new QVBoxLayout(popup_);
  popup_layout->setContentsMargins(1, 1, 1, 1);
  popup_layout->addWidget(calendar_);
  popup_->setFrameShape(QFrame::Box);
  calendar_->setFirstDayOfWeek(Qt::Sunday);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  connect(calendar_, &QCalendarWidget::clicked, this, [this](const QDate& picked) {
    SetValue(FromQDate(picked));
    popup_->hide();
    editor_->setFocus(Qt::PopupFocusReason);
  });
}

std::optional<Date> QtDateEdit::Value() const { return Date::Parse(FromQString(editor_->displayText())); }

void QtDateEdit::SetValue(std::optional<Date> value) {
  if (value) {
    editor_->setText(ToQString(value->ToText()));
  } else {
    editor_->clear();
  }
}

std::string QtDateEdit::Text() const { return FromQString(editor_->displayText()); }

void QtDateEdit::SetCalendarTitleColor(OleColor color) {
  title_color_ = color;
  if (auto* bar = calendar_->findChild<QWidget*>("qt_calendar_navigationbar")) {
    QColor qcolor = ToQColor(color, palette());
    bar->setStyleSheet(QString("background-color: %1;").arg(qcolor.name()));
  }
}

void QtDateEdit::OpenCalendar() {
  if (!isEnabled()) return;
  auto current = Value();
  calendar_->setSelectedDate(current ? ToQDate(*current) : QDate::currentDate());
  popup_->move(mapToGlobal(QPoint(0, height())));
  popup_->show();
  calendar_->setFocus();
}

bool QtDateEdit::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_F2) {
      SetValue(std::nullopt);
      return true;
    }
    if (key->key() == Qt::Key_F3) {
      SetValue(FromQDate(QDate::currentDate()));
      return true;
    }
    if (key->key() == Qt::Key_F4) {
      OpenCalendar();
      return true;
    }
  } else if (event->type() == QEvent::FocusIn) {
    // An empty field starts typing at the first digit, not where the click landed.
    if (!Value() && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
      QMetaObject::invokeMethod(editor_, [this] { editor_->setCursorPosition(0); }, Qt::QueuedConnection);
    }
  } else if (event->type() == QEvent::FocusOut) {
    auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (!IsTransientFocusChange(reason) && !popup_->isVisible() && on_focus_lost_) on_focus_lost_();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace zenta::qt
