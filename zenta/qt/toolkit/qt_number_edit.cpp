#include "zenta/qt/toolkit/qt_number_edit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QTimer>
#include <QValidator>

#include "zenta/core/number_format.h"
#include "zenta/qt/toolkit/qt_array_grid.h"

namespace zenta::qt {

namespace {
std::optional<Currency> ParseValue(const std::string& text) {
  try {
    return Currency::Parse(text);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

// Refuses any edit that would leave text the edit format does not allow, pasting included.
class EditFormatValidator : public QValidator {
 public:
  explicit EditFormatValidator(QtNumberEdit& edit) : QValidator(&edit), edit_(edit) {}
  State validate(QString& input, int&) const override {
    return edit_.FitsEditFormat(input) ? Acceptable : Invalid;
  }

 private:
  QtNumberEdit& edit_;
};
}  // namespace

QtNumberEdit::QtNumberEdit(QWidget* parent, const platform::WidgetSpec& definition)
    : QLineEdit(parent), QtWidgetBase(*this, definition) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setValidator(new EditFormatValidator(*this));
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { TypedTextChanged(text); });
  Show();
}

bool QtNumberEdit::FitsEditFormat(const QString& text) const {
  int integer = 0, fraction = 0;
  bool point = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    QChar c = text[i];
    if (c == u'-' && i == 0) continue;
    if (c == u'.' && !point && decimals_ > 0) {
      point = true;
    } else if (c.isDigit() && c.unicode() < 128) {
      (point ? fraction : integer) += 1;
    } else {
      return false;
    }
  }
  return integer <= integer_digits_ && fraction <= decimals_;
}

void QtNumberEdit::SetValue(std::optional<Currency> value) {
  value_ = value;
  raw_ = value ? value->ToString() : std::string();
  Show();
}

void QtNumberEdit::SetText(const std::string& text) {
  raw_ = text;
  value_ = ParseValue(text);
  Show();
}

void QtNumberEdit::SetDisplayFormat(const std::string& pattern) {
  display_format_ = pattern;
  Show();
}

void QtNumberEdit::SetEditFormat(const std::string& pattern) {
  auto point = pattern.find('.');
  integer_digits_ = static_cast<int>(point == std::string::npos ? pattern.size() : point);
  decimals_ = point == std::string::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
}

std::string QtNumberEdit::DisplayText() const {
  return showing_raw_ ? raw_ : FormatNullable(value_, display_format_);
}

void QtNumberEdit::SetBackColor(OleColor color) {
  back_color_ = color;
  QPalette p = palette();
  p.setColor(QPalette::Base, ToQColor(color, QPalette()));
  setPalette(p);
}

void QtNumberEdit::Show() {
  QString shown = ToQString(DisplayText());
  if (QLineEdit::text() == shown) return;
  // The validator guards typing only: a display text is always allowed in.
  const QValidator* guard = validator();
  setValidator(nullptr);
  QLineEdit::setText(shown);
  setValidator(guard);
}

void QtNumberEdit::TypeCharacter(char32_t character) {
  if (character == U'.' || (character >= U'0' && character <= U'9') || character == U'-') {
    insert(QString(QChar(static_cast<char16_t>(character))));
    TypedTextChanged(QLineEdit::text());
  }
}

void QtNumberEdit::TypedTextChanged(const QString& text) {
  raw_ = FromQString(text);
  value_ = ParseValue(raw_);
}

bool QtNumberEdit::event(QEvent* event) {
  // In a grid, Tab ends the cell edit instead of moving the focus chain.
  if (grid_ && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
      keyPressEvent(key);
      return true;
    }
  }
  return QLineEdit::event(event);
}

void QtNumberEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F2) {
    SetValue(std::nullopt);
    return;
  }
  if (event->key() == Qt::Key_F4) return;
  const bool ends_cell = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                         event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (grid_ && ends_cell) {
    grid_->EndEditFromEditor(event);
    return;
  }
  QString typed = event->text();
  if (typed.size() == 1 && typed[0].isPrint()) {
    char32_t key = typed[0].unicode();
    if (grid_) {
      platform::KeyPress press{key};
      grid_->FilterKey(press);
      if (press.key == 0) return;
      key = press.key;
    }
    // The locale's decimal key types our point: a comma locale must not turn 12,50 into 1250.
    if (QString(QChar(key)) == QLocale().decimalPoint()) key = U'.';
    if (key != typed[0].unicode()) {
      insert(QString(QChar(static_cast<char16_t>(key))));
      TypedTextChanged(QLineEdit::text());
      return;
    }
  }
  if (!grid_ && ends_cell) {
    event->ignore();  // leave Enter to the control's preview and Tab to the focus chain
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void QtNumberEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  showing_raw_ = true;
  Show();
  if (IsTransientFocusChange(event->reason())) return;
  selectAll();
  if (event->reason() == Qt::MouseFocusReason) {
    // The press that gave the focus also places the caret; select after it.
    QTimer::singleShot(0, this, [this] {
      if (hasFocus()) selectAll();
    });
  }
  if (on_focus_gained_) on_focus_gained_();
}

void QtNumberEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (IsTransientFocusChange(event->reason())) return;
  if (grid_) grid_->EditorLosingFocus();
  showing_raw_ = false;
  Show();
  if (on_focus_lost_) on_focus_lost_();
  Show();
}

}  // namespace zenta::qt
