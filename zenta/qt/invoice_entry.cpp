#include "zenta/qt/invoice_entry.h"

#include <QAction>
#include <QHeaderView>
#include <QTableView>
#include <QVariantMap>
#include <algorithm>
#include <exception>
#include <map>
#include <memory>

#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/qt/application_context.h"
#include "zenta/qt/control_binding.h"
#include "zenta/qt/invoice_line_list.h"
#include "zenta/qt/toolkit/qt_grid_view.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_surface.h"
#include "zenta/qt/toolkit/twips_layout.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

namespace {

// The invoice list is drawn at this width at least; the lines of the current invoice stand beside it.
constexpr int kInvoiceGridWidth = 6120;
constexpr int kGridGap = 60;
// Room for a grid's frame and vertical scroll bar beside its columns.
constexpr int kGridChrome = 420;

}  // namespace

InvoiceEntry::InvoiceEntry(QWidget* parent)
    : ControlWidget(parent),
      control_(std::make_unique<zenta::InvoiceEntry>(Surface(), Host(), ApplicationContext())) {
  InvoiceRecord::Register();
  Attach(std::make_unique<BindingTo<zenta::InvoiceEntry>>(*control_));
  Surface().OnResize([this] { FitGrid(); });
  // Columns shown, hidden or re-captioned (by the mode, SetupIPGrid or loaded properties) are
  // fitted once the call that changed them has returned: the control pumps events midway.
  if (auto* view = qobject_cast<QTableView*>(Surface().FindQWidget("grInvoices"))) {
    connect(view->model(), &QAbstractItemModel::headerDataChanged, this, &InvoiceEntry::FitGrid, Qt::QueuedConnection);
  }
  FitGrid();
  CreateUndoActions();
}

void InvoiceEntry::CreateUndoActions() {
  undo_action_ = new QAction(UiText("&Undo"), this);
  redo_action_ = new QAction(UiText("&Redo"), this);
  undo_action_->setShortcut(QKeySequence::Undo);
  redo_action_->setShortcut(QKeySequence::Redo);
  connect(undo_action_, &QAction::triggered, this, [this] { Guard([&] { control_->Undo(); }); });
  connect(redo_action_, &QAction::triggered, this, [this] { Guard([&] { control_->Redo(); }); });
  auto follow = [this] {
    undo_action_->setEnabled(control_->CanUndo());
    redo_action_->setEnabled(control_->CanRedo());
  };
  control_->OnUndoStateChanged(follow);
  follow();
}

void InvoiceEntry::PasteText(const QString& text) { Guard([&] { control_->PasteText(text.toStdString()); }); }

InvoiceEntry::~InvoiceEntry() {
  if (control_) control_->OnUndoStateChanged({});
  // The control lets go of its grids when it is destroyed, so it goes before the surface.
  DetachControl();
  control_.reset();
  DestroySurface();
}

int InvoiceEntry::ColumnsWidth() const {
  // A column is as wide as drawn or as its caption needs at the current font, whichever is more.
  const platform::GridEngine& engine = control_->grInvoices().Engine();
  const auto* view = qobject_cast<const QTableView*>(Surface().FindQWidget("grInvoices"));
  const double scale = std::max(0.01, FontScale(Surface(), Qt::Horizontal));
  int width = kGridChrome;
  for (int column = 0; column < engine.ColumnCount(); ++column) {
    if (!engine.Column(column).visible) continue;
    const int caption = view ? static_cast<int>(Surface().ToTwips(view->horizontalHeader()->sectionSizeHint(column)) / scale) : 0;
    width += std::max(engine.Column(column).width, caption);
  }
  return width;
}

int InvoiceEntry::NeededWidth() const {
  const platform::Widget* lines = Surface().Find("grDistribution");
  return ColumnsWidth() + (lines ? kGridGap + lines->Rect().width : 0);
}

void InvoiceEntry::FitGrid() {
  // The surface stretches its children across the control's width; the invoice list is drawn
  // at least as wide as its columns, so that a wider layout (business or foreign-currency
  // columns) asks the host for room instead of scrolling or running under the lines beside it.
  // Both grids take the control's height.
  if (!control_) return;
  platform::Grid& grid = control_->grInvoices();
  platform::Widget* lines = Surface().Find("grDistribution");
  const double scale = std::max(0.01, FontScale(Surface(), Qt::Vertical));
  const int height = static_cast<int>(Surface().Height() / scale);
  platform::TwipsRect rect = grid.Rect();
  rect.width = std::max(kInvoiceGridWidth, ColumnsWidth());
  rect.height = std::max(zenta::InvoiceEntry::kMinimumHeight, height - rect.top);
  grid.SetRect(rect);
  if (lines) {
    platform::TwipsRect right = lines->Rect();
    right.left = rect.left + rect.width + kGridGap;
    right.top = rect.top;
    right.height = rect.height;
    lines->SetRect(right);
  }
  const QSize minimum = minimumSizeHint();
  if (minimumSize() != minimum) {
    setMinimumSize(minimum);
    updateGeometry();
  }
}

QSize InvoiceEntry::minimumSizeHint() const {
  const QSize base = ControlWidget::minimumSizeHint();
  if (!control_) return base;
  return base.expandedTo(Surface().FittedSize(NeededWidth(), zenta::InvoiceEntry::kMinimumHeight));
}

QSize InvoiceEntry::sizeHint() const { return minimumSizeHint().expandedTo(ControlWidget::sizeHint()); }

void InvoiceEntry::EmitTyped(platform::RaisedEvent& event) {
  auto row_event = [&event](auto emit_signal) {
    short row = event.args.empty() ? short{0} : event.args.front().ToInteger();
    emit_signal(row);
    if (!event.args.empty()) event.args.front() = Variant(std::int16_t{row});
  };
  const bool two = event.args.size() == 2;
  switch (event.number) {
    case InvoiceEvents::kRecalculate: emit Recalculate(); break;
    case InvoiceEvents::kFirstDistributionEntered:
      row_event([this](short& row) { emit FirstDistributionEntered(row); });
      break;
    case InvoiceEvents::kDistributionEntered: row_event([this](short& row) { emit DistributionEntered(row); }); break;
    case InvoiceEvents::kCheckDuplicateInvoices: {
      QString number = two ? ToQString(event.args[0].ToString()) : QString();
      bool cancel = two && event.args[1].ToBool();
      emit CheckDuplicateInvoices(number, cancel);
      if (two) event.args = {Variant(FromQString(number)), Variant(cancel)};
      break;
    }
    case InvoiceEvents::kValidateInvoiceAmountLimit: {
      Currency amount = two ? event.args[0].ToCurrency() : Currency();
      bool cancel = two && event.args[1].ToBool();
      emit ValidateInvoiceAmountLimit(amount, cancel);
      if (two) event.args = {Variant(amount), Variant(cancel)};
      break;
    }
    default: break;
  }
}

void InvoiceEntry::Clear() { Guard([&] { control_->Clear(); }); }
void InvoiceEntry::ShowDistribution() { Guard([&] { control_->ShowDistribution(); }); }

bool InvoiceEntry::IsDataValid(QString& InvalidReason, bool& Incomplete) {
  std::string reason = FromQString(InvalidReason);
  bool valid = false;
  Guard([&] { valid = control_->IsDataValid(reason, Incomplete); });
  InvalidReason = UiText(reason);  // a reason the host shows to the payer
  return valid;
}

QString InvoiceEntry::InvalidReason() {
  QString reason;
  bool incomplete = false;
  IsDataValid(reason, incomplete);
  return reason;
}

bool InvoiceEntry::DataEntryComplete() const { return control_->DataEntryComplete(); }

InvoiceRecord InvoiceEntry::InvoiceValues(short TheRow) const {
  InvoiceRecord record;
  Guard([&] {
    const std::shared_ptr<clsInvoice> invoice = control_->InvoiceValues(TheRow);
    record = InvoiceRecord(InvoiceRecord::Filled{});
    record.InvoiceDate = ToQDate(invoice->InvoiceDate);
    record.InvoiceNo = ToQString(invoice->InvoiceNo);
    record.InvoiceAmount = invoice->InvoiceAmount;
    record.GSTAmount = invoice->GSTAmount;
    record.CompanyExpense = invoice->CompanyExpense;
    record.PaymentFor = ToQString(invoice->PaymentFor);
    record.EmailFilename = ToQString(invoice->EmailFilename);
    // The lines stay the store's block until the host reads them.
    record.Distributions = InvoiceLineList(control_->Store().LineBlock(invoice->ID));
  });
  return record;
}

void InvoiceEntry::SetInvoiceValues(short TheRow, const QVariant& value) {
  Guard([&] { control_->SetInvoiceValues(TheRow, FromQVariant(value)); });
}

void InvoiceEntry::DeleteCurrentRow() { Guard([&] { control_->DeleteCurrentRow(); }); }

bool InvoiceEntry::AddInvoice(const QDate& InvoiceDate, const QString& InvoiceNo, Currency InvoiceAmount,
                              const QVariant& GST, bool bShowDistribution) {
  bool result = false;
  Guard([&] {
    result = control_->AddInvoice(FromQDate(InvoiceDate), FromQString(InvoiceNo), InvoiceAmount, FromQVariant(GST),
                                  Variant(bShowDistribution));
  });
  return result;
}

void InvoiceEntry::SetEmailFilename(short TheRow, const QString& TheEmailAddress) {
  // Storing the name raises no event and changes no notifying property, so the guard (watching
  // for a host that deletes the widget, then signalling changes) is needed only for a refusal.
  try {
    control_->SetEmailFilename(TheRow, FromQString(TheEmailAddress));
  } catch (...) {
    Guard([error = std::current_exception()] { std::rethrow_exception(error); });
  }
}

short InvoiceEntry::InvoiceCount_DetailLines() const {
  // More than 32,767 lines is Overflow, reported to the host like every other refusal.
  short lines = 0;
  Guard([&] { lines = control_->InvoiceCount_DetailLines(); });
  return lines;
}
short InvoiceEntry::InvoiceCount() const { return control_->InvoiceCount(); }

void InvoiceEntry::DeleteByEmailFilename(const QString& strFilename) {
  Guard([&] { control_->DeleteByEmailFilename(FromQString(strFilename)); });
}

void InvoiceEntry::SetCurrencyRate(float rate) { Guard([&] { control_->SetCurrencyRate(rate); }); }
void InvoiceEntry::SetIPCurrency(const QString& code) { Guard([&] { control_->SetIPCurrency(FromQString(code)); }); }
void InvoiceEntry::SetOtherCurrencyCode(const QVariant& code) {
  Guard([&] { control_->SetOtherCurrencyCode(FromQVariant(code)); });
}
void InvoiceEntry::ParseInvoiceNo(const QString& sInvoiceNo) {
  Guard([&] { control_->ParseInvoiceNo(FromQString(sInvoiceNo)); });
}

QVariantList InvoiceEntry::PassInvoiceValues(short TheRow, bool& bMultiple) {
  QVariantList result;
  Guard([&] {
    for (const InvoiceOutputLine& line : control_->PassInvoiceValues(TheRow, bMultiple)) {
      QVariantMap map;
      map.insert(QStringLiteral("Text"), ToQString(line.Text));
      map.insert(QStringLiteral("First"), line.First);
      if (line.First) {
        map.insert(QStringLiteral("InvoiceDate"), ToQDate(line.InvoiceDate));
        map.insert(QStringLiteral("InvoiceAmount"), QVariant::fromValue(line.InvoiceAmount));
        map.insert(QStringLiteral("GSTAmount"), QVariant::fromValue(line.GSTAmount));
        map.insert(QStringLiteral("CompanyExpense"), QVariant::fromValue(line.CompanyExpense));
      }
      result.append(map);
    }
  });
  return result;
}

QVariantList InvoiceEntry::PassInvoiceValues(short TheRow) {
  bool multiple = false;
  return PassInvoiceValues(TheRow, multiple);
}

void InvoiceEntry::SetupIPGrid() {
  Guard([&] { control_->SetupIPGrid(); });
  FitGrid();
}

#define ZENTA_COLOR_PROPERTY(Name)                                                                   \
  QColor InvoiceEntry::Name() const { return ToQColor(control_->Name(), palette()); }               \
  void InvoiceEntry::Set##Name(const QColor& color) { Guard([&] { control_->Set##Name(FromQColor(color)); }); }

ZENTA_COLOR_PROPERTY(BackColorGridHeader)
ZENTA_COLOR_PROPERTY(BackColorGridFooter)
ZENTA_COLOR_PROPERTY(ForeColorGridHeader)
ZENTA_COLOR_PROPERTY(ForeColorGridFooter)
ZENTA_COLOR_PROPERTY(RowColorEven)
ZENTA_COLOR_PROPERTY(RowColorOdd)
#undef ZENTA_COLOR_PROPERTY

QString InvoiceEntry::DefaultGLAccount() const { return ToQString(control_->DefaultGLAccount()); }
void InvoiceEntry::SetDefaultGLAccount(const QString& account) {
  Guard([&] { control_->SetDefaultGLAccount(FromQString(account)); });
}

short InvoiceEntry::CurrentRow() const { return control_->CurrentRow(); }
void InvoiceEntry::SetCurrentRow(short row) { Guard([&] { control_->SetCurrentRow(row); }); }
short InvoiceEntry::RowCount() const { return control_->RowCount(); }
Currency InvoiceEntry::TotalAmount() const { return control_->TotalAmount(); }
Currency InvoiceEntry::TotalGST() const { return control_->TotalGST(); }
Currency InvoiceEntry::TotalExpense() const { return control_->TotalExpense(); }
Currency InvoiceEntry::TotalForeignAmount() const { return control_->TotalForeignAmount(); }

void InvoiceEntry::Rebind() { Guard([&] { control_->grInvoices().Engine().Rebind(); }); }

}  // namespace zenta::qt
