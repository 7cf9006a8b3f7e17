#include "zenta/qt/toolkit/qt_number_edit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>
#include <QValidator>

#include "zenta/platform/keys.h"
#include "zenta/qt/toolkit/accessible_amount.h"

namespace zenta::qt {

namespace {
// Runs every change of the text, typed or pasted, through the edit's rules.
class EditFormatValidator : public QValidator {
 public:
  explicit EditFormatValidator(QtNumberEdit& edit) : QValidator(&edit), edit_(edit) {}

  State validate(QString& input, int& position) const override {
    std::optional<QString> accepted = edit_.AcceptableEdit(input, position);
    if (!accepted) return Invalid;
    input = *accepted;
    return Acceptable;
  }

 private:
  QtNumberEdit& edit_;
};

bool IsCellEndingKey(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}
}  // namespace

QtNumberEdit::QtNumberEdit(QWidget* parent, const platform::WidgetSpec& definition)
    : QLineEdit(parent), QtWidgetBase(*this, definition) {
  InstallAccessibleAmounts();
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setValidator(new EditFormatValidator(*this));
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) { TypedTextChanged(text); });
  Show();
}

QtNumberEdit::Counts QtNumberEdit::CountDigits(const QString& text) const {
  Counts counts;
  bool point = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c == u'-' && i == 0) continue;
    if (c == u'.' && !point && decimals_ > 0) {
      point = true;
    } else if (c >= u'0' && c <= u'9') {
      (point ? counts.fraction : counts.integer) += 1;
    } else {
      counts.well_formed = false;
    }
  }
  return counts;
}

std::optional<QString> QtNumberEdit::AcceptableEdit(const QString& text, int& position) const {
  const QString locale_point = locale().decimalPoint();
  const QChar point = locale_point.size() == 1 ? locale_point[0] : QChar(u'.');
  QString cleaned;
  cleaned.reserve(text.size());
  int cleaned_position = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c.isSpace() || c == u'$' || (c == u',' && point != u',')) continue;  // blanks, currency sign, grouping
    cleaned += c == point ? QChar(u'.') : c;
    if (i < position) ++cleaned_position;
  }
  const Counts counts = CountDigits(cleaned);
  if (!counts.well_formed) return std::nullopt;
  // A value the program set may be longer than the format allows; deleting from it is fine.
  const bool fits = counts.integer <= integer_digits_ && counts.fraction <= decimals_;
  if (!fits && cleaned.size() >= ToQString(DisplayText()).size()) return std::nullopt;
  position = cleaned_position;
  return cleaned;
}

void QtNumberEdit::SetValue(std::optional<Currency> value) {
  value_ = value;
  raw_ = value ? value->ToString() : std::string();
  setModified(false);
  Show();
}

void QtNumberEdit::SetText(const std::string& text) {
  raw_ = text;
  setModified(false);
  value_ = CurrencyFromQString(ToQString(text));
  Show();
}

void QtNumberEdit::SetDisplayFormat(const std::string& pattern) {
  display_format_ = pattern;
  Show();
}

void QtNumberEdit::SetEditFormat(const std::string& pattern) {
  // Only digit placeholders count: grouping or literal characters of a pattern are never typed.
  integer_digits_ = 0;
  decimals_ = 0;
  bool point = false;
  for (char c : pattern) {
    if (c == '.') point = true;
    if (c == '#' || c == '0' || c == '9') ++(point ? decimals_ : integer_digits_);
  }
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

bool QtNumberEdit::FinishEdit() {
  if (!hasFocus() || !isModified()) return false;
  setModified(false);
  if (on_focus_lost_) on_focus_lost_();
  return true;
}

void QtNumberEdit::Show() {
  QString shown = ToQString(DisplayText());
  if (!showing_raw_) shown = LocalAmountText(shown, locale());
  if (QLineEdit::text() == shown) return;
  // The validator guards the user's edits; what the program shows always goes in.
  const QValidator* guard = validator();
  setValidator(nullptr);
  QLineEdit::setText(shown);
  setValidator(guard);
}

void QtNumberEdit::TypeCharacter(char32_t character) {
  if (character == platform::keys::kBackspace) {
    backspace();
  } else if (character >= 32) {
    insert(QString::fromUcs4(&character, 1));
  }
}

bool QtNumberEdit::TypeOver(const QString& text) {
  if (isReadOnly() || !isEnabled()) return false;
  int position = static_cast<int>(text.size());
  const std::optional<QString> accepted = AcceptableEdit(text, position);
  if (!accepted) return false;
  TypedTextChanged(*accepted);
  Show();
  if (hasFocus()) {
    setModified(true);
  } else if (on_focus_lost_) {
    on_focus_lost_();
  }
  return true;
}

void QtNumberEdit::TypedTextChanged(const QString& text) {
  raw_ = FromQString(text);
  value_ = CurrencyFromQString(text);
}

bool QtNumberEdit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    // F2 and F4 belong to the field, not to an application shortcut.
    if (event->type() == QEvent::ShortcutOverride && (key->key() == Qt::Key_F2 || key->key() == Qt::Key_F4)) {
      event->accept();
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
  if (IsCellEndingKey(event->key())) {
    event->ignore();  // Enter belongs to the control's preview, Tab to the focus chain
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
    // The press that gave the focus places the caret after this; select once it has.
    QTimer::singleShot(0, this, [this] {
      if (hasFocus()) selectAll();
    });
  }
  if (on_focus_gained_) on_focus_gained_();
}

void QtNumberEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (IsTransientFocusChange(event->reason())) return;
  setModified(false);
  showing_raw_ = false;
  // The shown text changes before the focus-lost rule has read what was typed; a reader woken
  // by that change still gets the pending value.
  leaving_ = true;
  Show();
  leaving_ = false;
  if (on_focus_lost_) on_focus_lost_();
}

}  // namespace zenta::qt
