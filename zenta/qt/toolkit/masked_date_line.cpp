#include "zenta/qt/toolkit/masked_date_line.h"

#include <QFocusEvent>
#include <QTimer>

#include "zenta/core/date_format.h"
#include "zenta/qt/toolkit/accessible_date.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

MaskedDateLine::MaskedDateLine(QWidget* parent) : QLineEdit(parent) {
  // Setting the mask already asks for this edit's accessible interface.
  InstallAccessibleDates();
  setInputMask("9999/99/99;_");
}

QString MaskedDateLine::Reading() const {
  const QString shown = displayText();
  return shown == ToQString(std::string(formats::kDateMask)) ? QString() : shown;
}

void MaskedDateLine::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (IsTransientFocusChange(reason)) return;
  if (reason != Qt::MouseFocusReason) {
    selectAll();
  } else if (Reading().isEmpty()) {
    // An empty field starts at its first digit, not where the click landed; the press that
    // gave the focus places the caret after this.
    QTimer::singleShot(0, this, [this] { setCursorPosition(0); });
  }
}

}  // namespace zenta::qt
