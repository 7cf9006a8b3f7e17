#include "zenta/qt/chart_of_accounts.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QFile>
#include <memory>

#include "zenta/core/host_error.h"
#include "zenta/entry/chart_file.h"
#include "zenta/qt/application_context.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

namespace {

constexpr const char* kWatchName = "zenta-chart-watch";
constexpr const char* kWatchProperty = "zentaChartWatch";

bool ReadsActive(const QVariant& value) {
  if (!value.isValid()) return true;
  if (value.typeId() == QMetaType::QString) return !entry::MarksInactive(FromQString(value.toString()));
  return value.toBool();
}

// Lives as a child of the model: the chart follows the model's changes and goes with it.
class ChartWatch : public QObject {
 public:
  ChartWatch(QAbstractItemModel& model, AccountColumns columns) : QObject(&model), model_(model), columns_(columns) {
    setObjectName(QString::fromLatin1(kWatchName));
    connect(&model, &QAbstractItemModel::modelReset, this, [this] { Publish(); });
    connect(&model, &QAbstractItemModel::layoutChanged, this, [this] { Publish(); });
    connect(&model, &QAbstractItemModel::rowsInserted, this, [this] { Publish(); });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, [this] { Publish(); });
    connect(&model, &QAbstractItemModel::rowsMoved, this, [this] { Publish(); });
    connect(&model, &QAbstractItemModel::dataChanged, this, [this] { Publish(); });
    Publish();
  }
  ~ChartWatch() override {
    QCoreApplication* app = QCoreApplication::instance();
    if (!app || QCoreApplication::closingDown()) return;
    if (app->property(kWatchProperty).value<QObject*>() == this) app->setProperty(kWatchProperty, QVariant());
    // A model going away takes its accounts with it.
    ApplicationContext().SetChart(nullptr);
  }

  void Publish() { ApplicationContext().SetChart(std::make_shared<const ChartOfAccounts>(ChartFromModel(model_, columns_))); }

 private:
  QAbstractItemModel& model_;
  AccountColumns columns_;
};

// The application keeps the one watch, as it keeps the library context.
ChartWatch* CurrentWatch() {
  QCoreApplication* app = QCoreApplication::instance();
  return app ? static_cast<ChartWatch*>(app->property(kWatchProperty).value<QObject*>()) : nullptr;
}

}  // namespace

ChartOfAccounts ChartFromModel(const QAbstractItemModel& model, AccountColumns columns) {
  std::vector<GLAccount> accounts;
  const int rows = model.rowCount();
  accounts.reserve(static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row) {
    GLAccount account;
    account.number = FromQString(model.index(row, columns.number).data().toString().trimmed());
    if (account.number.empty()) continue;
    account.name = FromQString(model.index(row, columns.name).data().toString().trimmed());
    if (columns.active >= 0) {
      const QModelIndex active = model.index(row, columns.active);
      const QVariant check = active.data(Qt::CheckStateRole);
      account.active = check.isValid() ? check.toInt() != Qt::Unchecked : ReadsActive(active.data());
    }
    accounts.push_back(std::move(account));
  }
  return ChartOfAccounts(std::move(accounts));
}

ChartOfAccounts ChartFromFile(const QString& path, QString* error) {
  if (error) error->clear();
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    if (error) *error = UiText("The chart file cannot be read.") + QLatin1Char('\n') + file.errorString();
    return {};
  }
  if (file.size() > static_cast<qint64>(entry::kMaxChartFileSize)) {
    if (error) *error = UiText("The chart file is too large to be a chart of accounts.");
    return {};
  }
  const QByteArray text = file.readAll();
  entry::ChartFile read = entry::ParseChartFile(std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
  if (error) {
    QStringList lines;
    for (const entry::RefusedLine& refused : read.refused) lines << UiText(entry::RefusalText(refused));
    *error = lines.join(QLatin1Char('\n'));
  }
  return std::move(read.chart);
}

void SetChartOfAccounts(QAbstractItemModel* model, AccountColumns columns) {
  delete CurrentWatch();
  ApplicationContext().SetChart(nullptr);
  if (!model) return;
  QObject* watch = new ChartWatch(*model, columns);
  QCoreApplication::instance()->setProperty(kWatchProperty, QVariant::fromValue(watch));
}

void SetStrictAccounts(bool strict) { ApplicationContext().SetStrictAccounts(strict); }

bool SetGstHstProvince(const QString& province) {
  try {
    ApplicationContext().GstHst().SetProvince(FromQString(province));
    return true;
  } catch (const HostError&) {
    return false;
  }
}

bool SetGstHstRate(const QString& rate) {
  if (rate.trimmed().isEmpty()) {
    ApplicationContext().GstHst().SetExplicitRate(std::nullopt);
    return true;
  }
  const std::optional<Rate> parsed = Rate::Parse(FromQString(rate.trimmed()));
  if (!parsed) return false;
  try {
    ApplicationContext().GstHst().SetExplicitRate(parsed);
    return true;
  } catch (const HostError&) {
    return false;
  }
}

}  // namespace zenta::qt
