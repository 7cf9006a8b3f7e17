#include "zenta/qt/toolkit/qt_date_edit.h"

#include "zenta/qt/toolkit/masked_date_line.h"
#include "zenta/qt/toolkit/ui_text.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include "zenta/core/date_format.h"

namespace zenta::qt {

namespace {
bool IsDateKey(const QKeyEvent& key) {
  return key.key() == Qt::Key_F2 || key.key() == Qt::Key_F3 || key.key() == Qt::Key_F4 ||
         (key.key() == Qt::Key_Down && (key.modifiers() & Qt::AltModifier));
}
}  // namespace

QtDateEdit::QtDateEdit(QWidget* parent, const platform::WidgetSpec& definition)
    : QWidget(parent), QtWidgetBase(*this, definition), editor_(new MaskedDateLine(this)),
      button_(new QToolButton(this)), popup_(new QFrame(this, Qt::Popup)), calendar_(new QCalendarWidget(popup_)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(editor_);
  layout->addWidget(button_);
  editor_->setObjectName(ToQString(definition.name) + "_text");
  editor_->installEventFilter(this);
  setFocusProxy(editor_);
  setFocusPolicy(editor_->focusPolicy());
  button_->setArrowType(Qt::DownArrow);
  button_->setFocusPolicy(Qt::NoFocus);
  button_->setToolTip(UiText("Calendar (F4)"));
  // A button with an arrow and no text would otherwise have no name to read.
  button_->setAccessibleName(UiText("Calendar (F4)"));
  connect(editor_, &QLineEdit::textEdited, this, [this] { SetRefused(false); });
  connect(button_, &QToolButton::clicked, this, [this] { OpenCalendar(); });

  auto* popup_layout = new QVBoxLayout(popup_);
  popup_layout->setContentsMargins(1, 1, 1, 1);
  popup_layout->addWidget(calendar_);
  popup_->setFrameShape(QFrame::Box);
  // Day names "Sun" to "Sat" and the title "November 2026", whatever the user's locale.
  calendar_->setLocale(QLocale(QLocale::English, QLocale::Canada));
  calendar_->setFirstDayOfWeek(Qt::Sunday);
  calendar_->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  connect(calendar_, &QCalendarWidget::clicked, this, [this](const QDate& date) { PickDate(date); });
  connect(calendar_, &QCalendarWidget::activated, this, [this](const QDate& date) { PickDate(date); });
}

std::optional<Date> QtDateEdit::Value() const { return Date::Parse(FromQString(editor_->displayText())); }

void QtDateEdit::SetValue(std::optional<Date> value) {
  if (value) value->CheckedForField(Name());
  last_valid_ = value;
  SetRefused(false);
  if (value) {
    editor_->setText(ToQString(value->ToText()));
  } else {
    editor_->clear();
  }
}

std::string QtDateEdit::Text() const { return FromQString(editor_->displayText()); }

QWidget& QtDateEdit::CalendarTitleBar() {
  auto* bar = calendar_->findChild<QWidget*>("qt_calendar_navigationbar");
  return bar ? *bar : *calendar_;
}

void QtDateEdit::SetCalendarTitleColor(OleColor color) {
  title_color_ = color;
  // The title bar fills with the highlight role and its buttons write in highlighted text.
  QWidget& bar = CalendarTitleBar();
  const QColor fill = ToQColor(color, palette());
  QPalette p = bar.palette();
  p.setColor(QPalette::Highlight, fill);
  p.setColor(QPalette::HighlightedText, fill.lightnessF() > 0.6 ? Qt::black : Qt::white);
  bar.setPalette(p);
}

void QtDateEdit::Leave() {
  if (editor_->displayText() == ToQString(std::string(formats::kDateMask))) {
    last_valid_.reset();
  } else if (const std::optional<Date> typed = Value()) {
    last_valid_ = typed;
  } else {
    SetValue(last_valid_);
    SetRefused(true);
  }
  if (on_focus_lost_) on_focus_lost_();
}

void QtDateEdit::TypeOver(const QString& text) {
  if (editor_->isReadOnly() || !isEnabled()) return;
  QString digits;
  for (QChar c : text) {
    if (c.isDigit()) digits += c;  // the mask places its own slashes
  }
  editor_->setText(digits);
  SetRefused(false);
  if (editor_->hasFocus()) {
    editor_->setModified(true);
  } else {
    Leave();
  }
}

void QtDateEdit::SetRefused(bool refused) {
  if (refused == refused_) return;
  if (refused) tooltip_ = toolTip();
  refused_ = refused;
  // Tinted like a field in error, and said in words for those who cannot see the tint.
  QPalette p = editor_->palette();
  p.setColor(QPalette::Base, refused ? QColor(255, 220, 220) : palette().color(QPalette::Base));
  editor_->setPalette(p);
  setToolTip(refused ? UiText("Not a date: the previous date was kept.") : tooltip_);
}

bool QtDateEdit::CalendarOpen() const { return popup_->isVisible(); }

void QtDateEdit::OpenCalendar() {
  if (!isEnabled()) return;
  const std::optional<Date> current = Value();
  calendar_->setSelectedDate(current ? ToQDate(*current) : QDate::currentDate());
  popup_->adjustSize();
  popup_->move(mapToGlobal(QPoint(0, height())));
  popup_->show();
  calendar_->setFocus(Qt::PopupFocusReason);
}

void QtDateEdit::PickDate(const QDate& date) {
  SetValue(FromQDate(date));
  popup_->hide();
  editor_->setFocus(Qt::PopupFocusReason);
}

bool QtDateEdit::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // The field's keys, not an application shortcut's.
      if (IsDateKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
      }
      break;
    case QEvent::KeyPress: {
      auto* key = static_cast<QKeyEvent*>(event);
      if (!IsDateKey(*key)) break;
      if (key->key() == Qt::Key_F2) {
        SetValue(std::nullopt);
      } else if (key->key() == Qt::Key_F3) {
        SetValue(FromQDate(QDate::currentDate()));
      } else {
        OpenCalendar();
      }
      return true;
    }
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (!IsTransientFocusChange(reason) && !CalendarOpen()) Leave();
      break;
    }
    default: break;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace zenta::qt
