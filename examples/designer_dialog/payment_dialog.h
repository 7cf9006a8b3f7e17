#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class PaymentDialog;
}

// The host's dialog: one invoice to pay. OK stays disabled until there is an amount.
class PaymentDialog : public QDialog {
  Q_OBJECT

 public:
  explicit PaymentDialog(QWidget* parent = nullptr);
  ~PaymentDialog() override;

  // What the host books: the exact amounts, never the float readings.
  QString Summary() const;
  Ui::PaymentDialog& Form() { return *ui_; }

 private:
  void UpdateOk();

  std::unique_ptr<Ui::PaymentDialog> ui_;
};
