#include "zenta/qt/designer/default_account_dialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include "zenta/core/message_template.h"
#include "zenta/entry/message_templates.h"
#include "zenta/qt/chart_of_accounts.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {
namespace {

constexpr const char* kSettingsKey = "DefaultAccountChart";
// Refusals past these lines are left to the file's owner to find; the dialog stays small.
constexpr int kShownRefusals = 4;

QSettings Settings() { return QSettings(QStringLiteral("Zenta"), QStringLiteral("Designer")); }

QString ItemText(const GLAccount& account) {
  const std::string text = account.name.empty() ? account.number : account.number + "  " + account.name;
  return account.active ? ToQString(text) : UiText(FillTemplate(texts::kInactiveAccount, {text}));
}

}  // namespace

DefaultAccountDialog::DefaultAccountDialog(const QString& current_account, QWidget* parent)
    : QDialog(parent),
      path_(new QLineEdit(this)),
      filter_(new QLineEdit(this)),
      list_(new QListWidget(this)),
      status_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
  setWindowTitle(UiText("Default G/L Account"));
  path_->setObjectName("chartFile");
  filter_->setObjectName("filter");
  list_->setObjectName("accounts");
  status_->setObjectName("status");
  status_->setWordWrap(true);
  auto* browse = new QPushButton(UiText("Browse..."), this);
  browse->setObjectName("browse");
  browse->setAutoDefault(false);
  buttons_->button(QDialogButtonBox::Ok)->setText(UiText("OK"));
  buttons_->button(QDialogButtonBox::Cancel)->setText(UiText("Cancel"));

  auto* file_row = new QHBoxLayout;
  file_row->addWidget(path_, 1);
  file_row->addWidget(browse);
  auto* form = new QFormLayout;
  form->addRow(UiText("Chart file:"), file_row);
  form->addRow(UiText("Find:"), filter_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(list_, 1);
  layout->addWidget(status_);
  layout->addWidget(buttons_);
  // Room for a path and a long account name without the designer resizing first.
  resize(520, 420);

  path_->installEventFilter(this);
  filter_->installEventFilter(this);
  connect(browse, &QPushButton::clicked, this, &DefaultAccountDialog::Browse);
  connect(filter_, &QLineEdit::textChanged, this, &DefaultAccountDialog::ShowMatches);
  connect(list_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(item && (item->flags() & Qt::ItemIsEnabled));
  });
  connect(list_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    if (item->flags() & Qt::ItemIsEnabled) accept();
  });
  connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);

  buttons_->button(QDialogButtonBox::Ok)->setEnabled(false);
  const QString remembered = RememberedChart();
  if (remembered.isEmpty()) {
    status_->setText(UiText("Choose a chart file: one account a line, its number and name separated by a tab or a comma."));
    path_->setFocus();
  } else {
    LoadChart(remembered);
  }
  MarkAccount(current_account);
}

QString DefaultAccountDialog::RememberedChart() { return Settings().value(kSettingsKey).toString(); }

void DefaultAccountDialog::LoadChart(const QString& path) {
  path_->setText(path);
  QString error;
  chart_ = ChartFromFile(path, &error);
  QStringList lines = error.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  if (lines.size() > kShownRefusals) lines = lines.mid(0, kShownRefusals) << QStringLiteral("...");
  status_->setText(lines.join(QLatin1Char('\n')));
  if (!chart_.Empty()) Settings().setValue(kSettingsKey, QFileInfo(path).absoluteFilePath());
  filter_->clear();
  ShowMatches();
  (chart_.Empty() ? path_ : filter_)->setFocus();
}

QString DefaultAccountDialog::Account() const {
  const QListWidgetItem* item = list_->currentItem();
  return item && (item->flags() & Qt::ItemIsEnabled) ? item->data(Qt::UserRole).toString() : QString();
}

void DefaultAccountDialog::Browse() {
  const QString path = QFileDialog::getOpenFileName(this, UiText("Chart file"), QFileInfo(path_->text()).absolutePath(),
                                                    UiText("Chart files (*.csv *.tsv *.txt);;All files (*)"));
  if (path.isEmpty()) return;
  LoadChart(path);
}

void DefaultAccountDialog::ShowMatches() {
  list_->clear();
  const std::string typed = FromQString(filter_->text());
  std::vector<const GLAccount*> shown;
  if (typed.empty()) {
    for (const GLAccount& account : chart_.Accounts()) shown.push_back(&account);
  } else {
    shown = chart_.Complete(typed, chart_.Size(), AccountIndex::Include::kInactiveToo);
  }
  for (const GLAccount* account : shown) {
    auto* item = new QListWidgetItem(ItemText(*account), list_);
    item->setData(Qt::UserRole, ToQString(account->number));
    // Shown so the designer sees it exists, but a new line may not use it.
    if (!account->active) item->setFlags(item->flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
  }
  // Nothing is marked until Down is pressed, as in the distribution window's completion.
  list_->setCurrentRow(-1);
}

void DefaultAccountDialog::MoveMark(int step) {
  for (int row = list_->currentRow() + step; row >= 0 && row < list_->count(); row += step) {
    if (list_->item(row)->flags() & Qt::ItemIsEnabled) {
      list_->setCurrentRow(row);
      return;
    }
  }
  if (list_->currentRow() < 0 && step < 0) MoveMark(1);
}

void DefaultAccountDialog::MarkAccount(const QString& number) {
  if (number.isEmpty()) return;
  const GLAccount* account = chart_.Find(FromQString(number));
  if (!account) return;
  for (int row = 0; row < list_->count(); ++row) {
    if (list_->item(row)->data(Qt::UserRole).toString() == ToQString(account->number)) {
      if (list_->item(row)->flags() & Qt::ItemIsEnabled) list_->setCurrentRow(row);
      return;
    }
  }
}

bool DefaultAccountDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (watched == path_ && enter) {
    LoadChart(path_->text().trimmed());
    return true;
  }
  if (watched == filter_) {
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
      MoveMark(key == Qt::Key_Down ? 1 : -1);
      return true;
    }
    if (enter) {
      if (!Account().isEmpty()) accept();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace zenta::qt
