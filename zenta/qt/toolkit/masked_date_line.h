#pragma once

#include <QLineEdit>

namespace zenta::qt {

// The edit inside a date field, typed through the mask "____/__/__". QLineEdit moves the caret
// to the first blank of a masked field on Tab; this one selects the whole date instead, so that
// typing replaces it.
class MaskedDateLine : public QLineEdit {
 public:
  explicit MaskedDateLine(QWidget* parent);

  // What the field reads as: the date as shown, blanks included, and nothing for an empty
  // mask (never its bare slashes).
  QString Reading() const;

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace zenta::qt
