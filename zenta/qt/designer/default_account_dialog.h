#pragma once

#include <QDialog>
#include <QString>

#include "zenta/records/chart_of_accounts.h"

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace zenta::qt {

// Picks one account of a chart file: the file (the last one chosen is remembered), a filter
// line matched as the distribution window completes an account, and the list. Usable from the
// keyboard alone: Up and Down move through the list from the filter line, Enter takes the
// marked account. Knows nothing of Designer, so a host tool or a test can show it too.
class DefaultAccountDialog : public QDialog {
  Q_OBJECT

 public:
  explicit DefaultAccountDialog(const QString& current_account, QWidget* parent = nullptr);

  // Reads the chart at `path` and lists it; a chart that gave accounts is remembered.
  void LoadChart(const QString& path);
  // The marked account's number, as a payer would type it; empty when none is marked.
  QString Account() const;
  const ChartOfAccounts& Chart() const { return chart_; }

  // Where the last chart with accounts was read from.
  static QString RememberedChart();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Browse();
  void ShowMatches();
  void MoveMark(int step);
  void MarkAccount(const QString& number);

  ChartOfAccounts chart_;
  QLineEdit* path_;
  QLineEdit* filter_;
  QListWidget* list_;
  QLabel* status_;
  QDialogButtonBox* buttons_;
};

}  // namespace zenta::qt
