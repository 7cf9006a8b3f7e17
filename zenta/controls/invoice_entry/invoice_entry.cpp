#include "zenta/controls/invoice_entry/invoice_entry.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <utility>

#include "zenta/controls/distribution/distribution_handover.h"
#include "zenta/controls/distribution/rate_conversion.h"
#include "zenta/controls/distribution/validation_texts.h"
#include "zenta/controls/distribution/view_dist_column.h"
#include "zenta/controls/invoice_entry/detail_lines.h"
#include "zenta/controls/invoice_entry/invoice_clipboard.h"
#include "zenta/controls/invoice_entry/invoice_date_rule.h"
#include "zenta/controls/invoice_entry/invoice_limits.h"
#include "zenta/controls/invoice_entry/invoice_texts.h"
#include "zenta/core/date_mask.h"
#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/amount_entry.h"
#include "zenta/entry/amount_key_filter.h"
#include "zenta/entry/edit_keys.h"
#include "zenta/entry/enter_key.h"
#include "zenta/entry/text_filters.h"
#include "zenta/platform/grid_engine.h"
#include "zenta/platform/keys.h"
#include "zenta/platform/message_box.h"

namespace zenta {
namespace {

using Col = InvoiceStore::Column;

constexpr platform::TwipsRect kInvoiceGridRect{0, 0, 6120, 2415};
constexpr platform::TwipsRect kDistributionGridRect{6180, 0, 2880, 2415};
using invoice_limits::kMaxNumberLength;
// A character takes at least one byte, so a short text needs no counting: the validity check
// runs over every row.
bool NumberTooLong(std::string_view number) {
  return number.size() > kMaxNumberLength && utf8::Length(number) > kMaxNumberLength;
}
constexpr const char* kConversionSource = "InvoiceEntry";
using invoice_limits::kAmountDigits;
using invoice_limits::InForeignRange;

using texts::kAmountRequired;
using texts::kDateRequired;
using texts::kDateTitle;
using texts::kFutureDate;
using texts::kLongAgo;
using texts::kNumberRequired;
using texts::kNumberTooLong;
using texts::kTooFarAhead;
using texts::kGSTRequired;
using texts::kNoDistribution;
constexpr const char* kListFull =
    "The list is full: it holds at most 32,767 invoices. Delete one, or clear a row, to add this invoice.";
constexpr const char* kNotEqual =
    "The invoice amount does not equal the G/L Distribution amount. Please click the \"View Dist\" button.";

platform::GridColumn Described(const char* caption, platform::ColumnKind kind, int width, bool visible = true) {
  platform::GridColumn column;
  column.caption = caption;
  column.kind = kind;
  column.width = width;
  column.visible = visible;
  return column;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

std::string Text(const Variant& value) {
  if (value.IsEmpty() || value.IsNull()) return {};
  try {
    return value.ToString();
  } catch (const HostError&) {
    return {};
  }
}

// A rate cell holds the exact rate as text, or a currency from before the mode was on.
Rate RateOf(const Variant& value) {
  if (value.GetType() == Variant::Type::String) {
    if (const auto rate = Rate::Parse(value.ToString())) return *rate;
  }
  return Rate::FromCurrency(value.ToCurrency());
}

constexpr std::string_view kCurrentRow = "CurrentRow";

}  // namespace

InvoiceEntry::InvoiceEntry(platform::ControlSurface& surface, platform::HostServices& host, LibraryContext& context)
    : surface_(surface),
      host_(host),
      context_(context),
      events_(host),
      grid_(surface.AddGrid({"grInvoices", kInvoiceGridRect, "", true}, InvoiceStore::kColumnCount)),
      distribution_grid_(surface.AddGrid({"grDistribution", kDistributionGridRect, "", false}, 3)) {
  context_.SetCurrencyCode(std::string(LibraryContext::kHomeCurrency));
  BuildColumns();
  WireGrid();
  surface_.OnKeyDown([this](platform::KeyDown& key) { entry::EnterMovesOn(key, host_); });
  grid_.Engine().SetSource(&store_);
  BuildLineColumns();
  distribution_grid_.Engine().SetSource(&lines_source_);
  ApplyColors();
  store_.OnSummaryChanged([this] { AnnounceSummary(); });
}

void InvoiceEntry::AnnounceSummary() {
  for (std::string_view name : {"RowCount", "TotalAmount", "TotalGST", "TotalExpense", "TotalForeignAmount"}) {
    host_.ValueChanged(name);
  }
}

void InvoiceEntry::AnnounceStoredProperties() {
  for (std::string_view name : {"BackColor", "BusinessMode", "BackColorTitle", "Enabled", "DefaultGLAccount",
                                "BackColorGridHeader", "BackColorGridFooter", "ForeColorGridHeader",
                                "ForeColorGridFooter", "RowColorEven", "RowColorOdd"}) {
    host_.ValueChanged(name);
  }
}

InvoiceEntry::~InvoiceEntry() {
  // The grids and surface may outlive the control (a host's form keeps them): nothing they do
  // later may reach it.
  for (platform::Grid* grid : {&grid_, &distribution_grid_}) {
    grid->Engine().Handlers() = {};
    grid->Engine().SetSource(nullptr);
  }
  surface_.OnKeyDown({});
}

void InvoiceEntry::BuildColumns() {
  platform::GridEngine& engine = grid_.Engine();
  using platform::ColumnKind;
  engine.SetCaption("Invoices");
  engine.SetColumn(Col::kIdColumn, Described("ID", ColumnKind::Number, 0, false));
  engine.SetColumn(Col::kDateColumn, Described("Invoice Date", ColumnKind::Date, 1200));
  engine.SetColumn(Col::kNumberColumn, Described("Invoice Number / Description", ColumnKind::Text, 2400));
  engine.SetColumn(Col::kAmountColumn, Described("Invoice Amount", ColumnKind::Number, 1335));
  engine.SetColumn(Col::kGSTColumn, Described("Refundable GST/HST", ColumnKind::Number, 1335, false));
  engine.SetColumn(Col::kExpenseColumn, Described("Net Expense", ColumnKind::Number, 1335, false));
  engine.SetColumn(Col::kViewDistColumn, ViewDistColumn(900));
  engine.SetColumn(Col::kPaymentForColumn, Described("Payment For", ColumnKind::Text, 0, false));
  engine.SetColumn(Col::kEmailColumn, Described("Email", ColumnKind::Text, 0, false));
  engine.SetColumnLocked(Col::kExpenseColumn, true);
  engine.SetAllowAddNew(true);
  engine.SetAllowDelete(true);
}

void InvoiceEntry::BuildLineColumns() {
  platform::GridEngine& engine = distribution_grid_.Engine();
  using platform::ColumnKind;
  engine.SetCaption("G/L Distribution");
  using Lines = InvoiceLinesSource;
  engine.SetColumn(Lines::kIdColumn, Described("ID", ColumnKind::Number, 0, false));
  engine.SetColumn(Lines::kAccountColumn, Described("G/L Account", ColumnKind::Text, 1500));
  engine.SetColumn(Lines::kAmountColumn, Described("Amount", ColumnKind::Number, 1000));
  // The lines change through the distribution window; here they are read, or deleted.
  engine.SetColumnLocked(Lines::kAccountColumn, true);
  engine.SetColumnLocked(Lines::kAmountColumn, true);
  engine.SetAllowAddNew(false);
  engine.SetAllowDelete(true);
  engine.Handlers().format_text = [](platform::FormatTextArgs& args) {
    if (args.column == Lines::kAmountColumn && !args.value.IsEmpty()) args.text = FormatNumber(args.value.ToCurrency(), formats::kAmount);
  };
}

void InvoiceEntry::ShowCurrentLines(bool lines_changed) {
  const auto current = grid_.Engine().CurrentRow();
  const std::int16_t id = current && *current < store_.Count() ? store_.At(*current).id : std::int16_t{0};
  platform::GridEngine& engine = distribution_grid_.Engine();
  if (!lines_changed && id == lines_source_.Invoice()) return;
  lines_source_.ShowInvoice(id);
  engine.Rebind();
  const bool any = lines_source_.RowCount() > 0;
  engine.SetFooterText(InvoiceLinesSource::kAmountColumn, any ? FormatNumber(lines_source_.Total(), formats::kAmount) : "");
}

void InvoiceEntry::ScheduleTotals() {
  if (totals_pending_) return;
  totals_pending_ = true;
  host_.Post([this, control = lifetime_.Watched()] {
    if (!control.Alive()) return;
    totals_pending_ = false;
    ShowTotals();
  });
}

void InvoiceEntry::ShowTotals() {
  try {
    ShowTotalsOrRaise();
  } catch (const HostError& error) {
    // Totals past the currency range (invoices the host put): the footers keep what they
    // showed, and the host hears of it, as no call of its own is there to raise it to.
    host_.ReportError(error);
  }
}

void InvoiceEntry::ShowTotalsOrRaise() {
  platform::GridEngine& engine = grid_.Engine();
  const bool any = store_.Count() > 0;
  auto footer = [&](int column, bool shown, Currency total) {
    engine.SetFooterText(column, any && shown ? FormatNumber(total, formats::kAmount) : "");
  };
  const bool foreign = ForeignMode();
  footer(Col::kAmountColumn, true, foreign ? TotalForeignAmount() : TotalAmount());
  footer(Col::kGSTColumn, BusinessMode() && !foreign, TotalGST());
  footer(Col::kExpenseColumn, BusinessMode() || foreign, TotalExpense());
}

void InvoiceEntry::WireGrid() {
  platform::GridHandlers& on = grid_.Engine().Handlers();
  on.before_col_update = [this](platform::BeforeColUpdateArgs& args) { OnBeforeColUpdate(args); };
  on.after_col_update = [this](int column) { last_edited_column_ = column; };
  on.before_update = [this](platform::CancelArgs& args) {
    // A new row on a full list cannot be stored: the payer is told, and the typed row stays
    // for a blank row to be made (or the typing to be abandoned).
    const platform::GridEngine& engine = grid_.Engine();
    const auto current = engine.CurrentRow();
    if (!current || !engine.IsAddNewRow(*current) || store_.Count() < InvoiceStore::kMaxRows) {
      if (current && engine.IsAddNewRow(*current)) {
        row_edit_ = RowEdit{true, {}};
      } else if (current && *current < store_.Count()) {
        row_edit_ = RowEdit{false, store_.At(*current)};
      }
      return;
    }
    host_.ShowMessage({kListFull, "Invoice Entry", platform::MessageButtons::Ok, platform::MessageIcon::Information});
    args.cancel = true;
  };
  on.after_update = [this] {
    // The derived columns are worked out now, for the row just stored: the distribution window
    // may open before the posted refresh runs, and the cursor may have moved on by then.
    const auto stored = grid_.Engine().CurrentRow();
    if (stored) DeriveColumns(*stored);
    if (row_edit_ && stored && *stored < store_.Count()) RecordRowEdit(*stored, std::move(*row_edit_));
    row_edit_.reset();
    grid_.Engine().PostMessage(kAfterRowEdit);
  };
  on.before_delete = [this](platform::CancelArgs& args) {
    if (deleting_) return;
    args.cancel = host_.ShowMessage({"Are you sure you want to delete this invoice?", "Delete this invoice?",
                                     platform::MessageButtons::YesNo, platform::MessageIcon::Question}) ==
                  platform::MessageResult::No;
    if (!args.cancel) step_before_ = store_;
  };
  on.after_delete = [this] {
    if (step_before_) RecordStep(*std::exchange(step_before_, std::nullopt));
    host_.ValueChanged(kCurrentRow);
    ShowCurrentLines(true);
    ScheduleTotals();
    events_.Recalculate();
  };
  on.row_col_change = [this](std::optional<int>, int) {
    host_.ValueChanged(kCurrentRow);
    ShowCurrentLines();
  };
  distribution_grid_.Engine().Handlers().after_delete = [this] { ShowCurrentLines(true); };
  distribution_grid_.Engine().Handlers().before_delete = [this](platform::CancelArgs& args) {
    args.cancel = host_.ShowMessage({"Are you sure you want to delete this distribution?", "Delete this distribution?",
                                     platform::MessageButtons::YesNo, platform::MessageIcon::Question}) ==
                  platform::MessageResult::No;
  };
  on.button_click = [this](int column) {
    if (column == Col::kViewDistColumn) grid_.Engine().PostMessage(kOpenDistribution);
  };
  on.key_down = [this](platform::KeyDown& key) { OnKeyDown(key); };
  on.key_press = [](platform::CellKeyPressArgs& args) {
    if (args.key == 8 || args.key == 13) return;
    if (args.column >= Col::kAmountColumn && args.column <= Col::kExpenseColumn) {
      args.key = entry::FilterAmountKey(args.text, args.selection_start, args.selection_length, args.key, kAmountDigits);
    } else if (args.column == Col::kNumberColumn && args.key < 0x80) {
      if (entry::StripInvalidChars(std::string(1, static_cast<char>(args.key))).empty()) args.key = 0;
    } else if (args.column == Col::kNumberColumn) {
      args.key = 0;
    }
  };
  on.posted = [this](int message) { OnPosted(message); };
  on.cell_action = [this](platform::CellActionArgs& args) {
    if (args.column == Col::kGSTColumn && TaxCellApplies()) {
      TaxCell().OfferFill(context_.GstHst(), TaxDay(grid_.Engine().CurrentRow()), args);
    }
  };
  on.cell_hint = [this](platform::CellHintArgs& args) {
    if (args.column != Col::kGSTColumn || !TaxCellApplies()) return;
    args.text = TaxCell().Hint(grid_.Engine(), args.row, context_.GstHst(), TaxDay(args.row));
  };
  on.format_text = [this](platform::FormatTextArgs& args) {
    if (args.column < Col::kAmountColumn || args.column > Col::kExpenseColumn || args.value.IsEmpty()) return;
    if (ForeignMode() && args.column == Col::kGSTColumn) {
      args.text = RateOf(args.value).ToString();
      return;
    }
    args.text = FormatNumber(args.value.ToCurrency(), formats::kAmount);
  };
}

void InvoiceEntry::OnKeyDown(platform::KeyDown& key) {
  if (RunEditCommand(key)) return;
  if (TaxCellApplies() && TaxCell().Fill(grid_.Engine(), context_.GstHst(), TaxDay(grid_.Engine().CurrentRow()), key)) return;
  const bool forward = key.key_code == platform::keys::kTab || key.key_code == platform::keys::kEnter;
  if (!forward || key.shift != platform::kNoShift) return;
  platform::GridEngine& engine = grid_.Engine();
  const platform::Lifetime::Watch control = lifetime_.Watched();
  const bool committed = engine.CommitEdit();  // the host's vetoes run here
  if (!control.Alive()) return;
  if (!committed) {
    key.key_code = 0;
    return;
  }
  const int column = engine.CurrentColumn();
  if (column != LastAmountColumn() && column != Col::kViewDistColumn) return;
  // Leaving a row's last amount forward opens its distribution once the key has been handled.
  key.key_code = 0;
  engine.PostMessage(kOpenDistribution);
}

void InvoiceEntry::OnBeforeColUpdate(platform::BeforeColUpdateArgs& args) {
  if (deleting_) return;
  platform::GridEngine& engine = grid_.Engine();
  if (args.column == Col::kDateColumn) {
    const DateMask typed = DateMask::FromText(engine.CellText(Col::kDateColumn));
    const auto date = typed.Value();
    if (!date) {
      // A partial or impossible date stays in its cell for correction.
      if (!typed.IsBlank()) {
        host_.Beep();
        args.cancel = true;
      }
      return;
    }
    const InvoiceDateVerdict verdict = JudgeInvoiceDate(*date, host_.Today());
    if (verdict == InvoiceDateVerdict::kTooFarAhead) {
      // The date editor's own limit, before the column's questions.
      host_.ShowMessage({kTooFarAhead, kDateTitle, platform::MessageButtons::Ok, platform::MessageIcon::Information});
      args.cancel = true;
      return;
    }
    const char* question = verdict == InvoiceDateVerdict::kFuture    ? kFutureDate
                            : verdict == InvoiceDateVerdict::kLongAgo ? kLongAgo
                                                                      : nullptr;
    if (question && Ask(question, kDateTitle)) args.cancel = true;
  } else if (args.column == Col::kNumberColumn) {
    std::string number = engine.CellText(Col::kNumberColumn);
    if (Trimmed(number).empty()) {
      // A blank number is no invoice: refused without a word, the cell stays open.
      args.cancel = true;
      return;
    }
    if (NumberTooLong(number)) {
      host_.ShowMessage({kNumberTooLong, "Invoice Number/Description Validation", platform::MessageButtons::Ok,
                         platform::MessageIcon::Information});
      number_refused_ = true;
      args.cancel = true;
      return;
    }
    const std::optional<bool> refused = events_.CheckDuplicateInvoices(number);
    if (!refused) {
      args.cancel = true;
      return;
    }
    number_refused_ = *refused;
    args.cancel = number_refused_;
  } else if (args.column >= Col::kAmountColumn && args.column <= Col::kExpenseColumn) {
    const std::string typed = engine.CellText(args.column);
    const std::string text = entry::TypedGridAmount(typed);
    if (text != typed) engine.SetCellValue(args.column, Variant(text));
    if (BusinessMode() && !ForeignMode() && !NetExpenseFits()) {
      host_.Beep();
      host_.ReportError(HostError::Overflow("InvoiceEntry"));
      args.cancel = true;
      return;
    }
  }
  if (args.column == Col::kAmountColumn) {
    const Variant typed = engine.CellValue(Col::kAmountColumn);
    Currency amount;
    try {
      amount = TotalAmount() + (Text(typed).empty() ? Currency() : typed.ToCurrency());
    } catch (const HostError& error) {
      // A list whose total would pass the currency range takes no such amount.
      host_.Beep();
      host_.ReportError(error);
      args.cancel = true;
      return;
    }
    const std::optional<bool> refused = events_.ValidateInvoiceAmountLimit(amount);
    if (!refused) {
      args.cancel = true;
      return;
    }
    amount_refused_ = *refused;
    args.cancel = amount_refused_;
    if (amount_refused_) ClearRefusedAmount(args);
  }
}

void InvoiceEntry::ClearRefusedAmount(platform::BeforeColUpdateArgs& args) {
  // The host's limit leaves the row without amounts: the typed one, its GST/HST and expense.
  platform::GridEngine& engine = grid_.Engine();
  args.old_value = Variant(std::string());
  engine.SetCellValue(Col::kGSTColumn, Variant(std::string()));
  engine.SetCellValue(Col::kExpenseColumn, Variant(std::string()));
  const auto current = engine.CurrentRow();
  if (current && *current < store_.Count()) {
    InvoiceStore::Row row = store_.At(*current);
    row.amount.reset();
    store_.Put(*current, std::move(row));
  }
  events_.Recalculate();
}

bool InvoiceEntry::Ask(const char* question, const char* title) {
  return host_.ShowMessage({question, title, platform::MessageButtons::YesNo, platform::MessageIcon::Information}) ==
         platform::MessageResult::Yes;
}

void InvoiceEntry::OnPosted(int message) {
  const std::int16_t row = static_cast<std::int16_t>(pending_row_);
  switch (message) {
    case kRaiseFirstDistribution: {
      std::int16_t the_row = row;
      events_.FirstDistributionEntered(the_row);
      break;
    }
    case kRaiseDistribution: {
      std::int16_t the_row = row;
      events_.DistributionEntered(the_row);
      break;
    }
    case kAfterRowEdit: AfterRowEdit(); break;
    case kOpenDistribution: OpenPosted(); break;
    case kForeignRangeMessage:
      host_.ShowMessage({kForeignRangeText, "", platform::MessageButtons::Ok, platform::MessageIcon::Information});
      grid_.Engine().Refresh();
      break;
    default: break;
  }
}

void InvoiceEntry::OpenPosted() {
  try {
    ShowDistribution();
  } catch (const HostError&) {
    // The window is open for another control: the key or click opens nothing.
  }
}

entry::GstHstCell InvoiceEntry::TaxCell() { return {Col::kAmountColumn, Col::kGSTColumn}; }

bool InvoiceEntry::TaxCellApplies() const { return BusinessMode() && !ForeignMode(); }

// The rate in force on the invoice's date, or today's for a row without one.
Date InvoiceEntry::TaxDay(std::optional<int> row) const {
  if (row) {
    const Variant date = grid_.Engine().StoredValue(*row, Col::kDateColumn);
    if (date.GetType() == Variant::Type::Date && !date.ToDate().IsZero()) return date.ToDate();
  }
  return host_.Today();
}

bool InvoiceEntry::NetExpenseFits() const {
  const platform::GridEngine& engine = grid_.Engine();
  auto amount = [&engine](int column) {
    const Variant value = engine.CellValue(column);
    return Text(value).empty() ? Currency() : value.ToCurrency();
  };
  try {
    (void)(amount(Col::kAmountColumn) - amount(Col::kGSTColumn));
  } catch (const HostError& error) {
    return error.Number() != HostError::Overflow("").Number();
  }
  return true;
}

void InvoiceEntry::DeriveColumns(int index) {
  if (index < 0 || index >= store_.Count()) return;
  if (ForeignMode()) {
    Convert(index, last_edited_column_);
  } else if (BusinessMode()) {
    InvoiceStore::Row row = store_.At(index);
    if (row.amount || row.gst) row.expense = row.amount.value_or(Currency()) - row.gst.value_or(Currency());
    store_.Put(index, std::move(row));
  }
}

void InvoiceEntry::AfterRowEdit() {
  grid_.Engine().Refresh();
  ShowTotals();
  events_.Recalculate();
}

void InvoiceEntry::Convert(int index, int changed_column) {
  try {
    ConvertOrRaise(index, changed_column);
  } catch (const HostError&) {
    // A conversion past the currency range leaves the row as it was, with the range message.
    grid_.Engine().PostMessage(kForeignRangeMessage);
  }
}

void InvoiceEntry::ConvertOrRaise(int index, int changed_column) {
  InvoiceStore::Row row = store_.At(index);
  Conversion conversion = Conversion::kNone;
  try {
    conversion = Converted(row, changed_column);
  } catch (const HostError&) {
    // A product or quotient past the currency range (a rate far from any real one): the payer
    // hears it, and the row keeps what was typed, unconverted.
    host_.Beep();
  }
  switch (conversion) {
    case Conversion::kDone: store_.Put(index, std::move(row)); break;
    case Conversion::kOutOfRange: grid_.Engine().PostMessage(kForeignRangeMessage); break;
    case Conversion::kNone: break;
  }
}

InvoiceEntry::Conversion InvoiceEntry::Converted(InvoiceStore::Row& row, int changed_column) const {
  const Rate& rate = currency_rate_;
  row.rate = rate;
  try {
    row.gst = rate.ToCurrency(kConversionSource);
  } catch (const HostError&) {
    row.gst.reset();  // a rate past the currency range has no four-decimal form for the record
  }
  if (changed_column == Col::kExpenseColumn && row.expense) {
    if (rate.IsZero()) return Conversion::kNone;
    const Currency foreign = FromHomeAmount(*row.expense, rate, kConversionSource);
    if (!InForeignRange(foreign)) return Conversion::kOutOfRange;
    row.amount = foreign;
  } else if (row.amount) {
    if (!InForeignRange(*row.amount)) return Conversion::kOutOfRange;
    row.expense = ToHomeAmount(*row.amount, rate, kConversionSource);
  }
  return Conversion::kDone;
}

void InvoiceEntry::Clear() {
  opener_.Abandon();
  grid_.Engine().CancelEdit();
  store_.Clear();
  step_before_.reset();
  row_edit_.reset();
  history_.Clear();
  Rebind();
  SetupIPGrid();
  grid_.Engine().SetCurrentColumn(Col::kDateColumn);
  grid_.Engine().SetCurrentColumn(Col::kDateColumn);
}

void InvoiceEntry::SetBackColor(OleColor color) {
  properties_.back_color = color;
  surface_.SetBackColor(color);
  host_.MarkPropertyChanged("BackColor");
  host_.ValueChanged("BackColor");
}

void InvoiceEntry::SetBusinessMode(bool on) {
  properties_.business_mode = on;
  host_.ValueChanged("BusinessMode");
  Clear();
}

void InvoiceEntry::SetBackColorTitle(OleColor color) {
  properties_.back_color_title = color;
  host_.ValueChanged("BackColorTitle");
}

void InvoiceEntry::SetDefaultGLAccount(std::string account) {
  properties_.default_gl_account = std::move(account);
  host_.ValueChanged("DefaultGLAccount");
}

void InvoiceEntry::SetBackColorGridHeader(OleColor color) {
  properties_.back_color_grid_header = color;
  ApplyColors();
  host_.ValueChanged("BackColorGridHeader");
}
void InvoiceEntry::SetBackColorGridFooter(OleColor color) {
  properties_.back_color_grid_footer = color;
  ApplyColors();
  host_.ValueChanged("BackColorGridFooter");
}
void InvoiceEntry::SetForeColorGridHeader(OleColor color) {
  properties_.fore_color_grid_header = color;
  ApplyColors();
  host_.ValueChanged("ForeColorGridHeader");
}
void InvoiceEntry::SetForeColorGridFooter(OleColor color) {
  properties_.fore_color_grid_footer = color;
  ApplyColors();
  host_.ValueChanged("ForeColorGridFooter");
}
void InvoiceEntry::SetRowColorEven(OleColor color) {
  properties_.row_color_even = color;
  ApplyColors();
  host_.ValueChanged("RowColorEven");
}
void InvoiceEntry::SetRowColorOdd(OleColor color) {
  properties_.row_color_odd = color;
  ApplyColors();
  host_.ValueChanged("RowColorOdd");
}

void InvoiceEntry::ApplyColors() {
  // A colour left at its default is drawn in the toolkit's theme, so a dark desktop keeps a
  // readable list; the property still reads and stores the default. A host that sets the
  // default itself cannot be told apart (the store does not write it either).
  const InvoiceProperties defaults;
  auto chosen = [](OleColor color, OleColor default_color) {
    return color == default_color ? std::nullopt : std::optional<OleColor>(color);
  };
  platform::GridColors colors;
  colors.header_back = chosen(properties_.back_color_grid_header, defaults.back_color_grid_header);
  colors.header_fore = chosen(properties_.fore_color_grid_header, defaults.fore_color_grid_header);
  colors.footer_back = chosen(properties_.back_color_grid_footer, defaults.back_color_grid_footer);
  colors.footer_fore = chosen(properties_.fore_color_grid_footer, defaults.fore_color_grid_footer);
  colors.even_row_back = chosen(properties_.row_color_even, defaults.row_color_even);
  colors.odd_row_back = chosen(properties_.row_color_odd, defaults.row_color_odd);
  colors.alternate_rows = true;
  grid_.Engine().SetColors(colors);
  distribution_grid_.Engine().SetColors(colors);
}

void InvoiceEntry::SetEnabled(bool enabled) {
  properties_.enabled = enabled;
  ApplyEnabled();
  host_.ValueChanged("Enabled");
}

void InvoiceEntry::ApplyEnabled() {
  for (platform::Widget* child : surface_.Children()) child->SetEnabled(properties_.enabled);
}

void InvoiceEntry::ShowDistribution() {
  platform::GridEngine& engine = grid_.Engine();
  FrmDistribution& dialog = opener_.Prepare();
  const platform::Lifetime::Watch control = lifetime_.Watched();
  const bool committed = engine.CommitRow();  // the host's vetoes run here
  if (!control.Alive() || !committed) return;
  const auto current = engine.CurrentRow();
  if (!current || *current >= store_.Count()) return;
  const int index = *current;
  pending_row_ = index + 1;
  const bool first = store_.EnsureId(index);
  const InvoiceStore::Row& row = store_.At(index);
  const std::int16_t id = row.id;

  dialog.SetVisibleInvoice(true);
  const platform::TwipsRect size = dialog.Surface().Rect();
  const DialogPlacement place = PlaceOverControl(host_.Container(), size.width, size.height);
  dialog.Move(place.left, place.top);
  StyleDialogLines(dialog.Grid().Engine());
  dialog.SetIsFXPayment(ForeignMode());
  if (ForeignMode()) {
    dialog.SetCurrencyRate(currency_rate_);
    dialog.SetFXCurrencyCode(ip_currency_);
  }
  clsDistributions existing;
  std::vector<std::optional<Currency>> foreign;
  if (const auto* lines = store_.Lines(row.id)) {
    for (const InvoiceLine& line : *lines) {
      existing.Add(line.ID, line.GLAccount, line.Amount);
      foreign.push_back(line.Foreign);
    }
  }
  auto table = LinesForDialog(existing);
  ToForeignLayout(dialog, *table, foreign);
  dialog.SetXTempDistribution(table);
  dialog.SetupForm();
  const Currency amount = Distributable(row);
  dialog.SetAmountToDistribute(amount);
  dialog.SetInvoiceNo(row.number);
  dialog.SetPaymentFor(Variant(row.payment_for));
  if (existing.Count() == 0) ProposeWholeAmount(dialog, *table, properties_.default_gl_account, amount);

  if (opener_.Show() != DistributionOpener::Outcome::Accepted) return;
  // Rows deleted while the window was open leave the lines with no invoice to go to.
  if (index >= store_.Count() || store_.At(index).id != id) return;
  deleting_ = false;
  clsDistributions accepted;
  std::vector<std::optional<Currency>> typed_foreign;
  if (const auto& back = dialog.XTempDistribution()) {
    CopyLinesBack(*back, accepted, dialog.Model().AmountColumn());
    typed_foreign = ForeignAmountsBack(dialog, *back);
  }
  std::vector<InvoiceLine> lines;
  lines.reserve(static_cast<std::size_t>(accepted.Count()));
  for (const auto& line : accepted) {
    const std::size_t at = lines.size();
    lines.push_back({line->ID, line->GLAccount, line->Amount,
                     at < typed_foreign.size() ? typed_foreign[at] : std::nullopt});
  }
  const auto* before = store_.Lines(id);
  RecordSplit(index, before ? *before : std::vector<InvoiceLine>{}, store_.At(index).payment_for);
  store_.SetLines(id, std::move(lines));
  store_.SetPaymentFor(index, Text(dialog.PaymentFor()));
  engine.Refresh();
  ShowCurrentLines(true);
  engine.PostMessage(first ? kRaiseFirstDistribution : kRaiseDistribution);
}

Currency InvoiceEntry::Distributable(const InvoiceStore::Row& row) const {
  if (BusinessMode() || ForeignMode()) return row.expense.value_or(Currency());
  return row.amount.value_or(Currency());
}

Currency InvoiceEntry::LinesTotal(const InvoiceStore::Row& row) const { return store_.LinesTotal(row.id); }

bool InvoiceEntry::Fail(std::string& InvalidReason, const std::string& reason, int column) {
  InvalidReason = reason;
  const platform::Lifetime::Watch control = lifetime_.Watched();
  grid_.Engine().SetCurrentColumn(column);  // ends the cell edit: the host's vetoes run
  if (control.Alive()) grid_.SetFocus();
  return false;
}

bool InvoiceEntry::CheckCurrentRow(std::string& reason, bool& incomplete, int& column) {
  const platform::GridEngine& engine = grid_.Engine();
  if (!engine.CurrentRow()) return true;
  const DateMask typed_date = DateMask::FromText(engine.CellText(Col::kDateColumn));
  const bool no_date = typed_date.IsBlank();
  const std::string number = Trimmed(engine.CellText(Col::kNumberColumn));
  const bool no_amount = Trimmed(engine.CellText(Col::kAmountColumn)).empty();
  const bool no_gst = Trimmed(engine.CellText(Col::kGSTColumn)).empty();
  if (no_date && number.empty() && no_amount && (!BusinessMode() || no_gst)) return true;
  incomplete = true;
  // A date typed only in part is no date yet.
  if (!typed_date.Value()) return reason = kDateRequired, column = Col::kDateColumn, false;
  if (number.empty()) return reason = kNumberRequired, column = Col::kNumberColumn, false;
  if (no_amount) return reason = kAmountRequired, column = Col::kAmountColumn, false;
  incomplete = false;
  if (*typed_date.Value() > host_.Today().AddYears(2)) return reason = kTooFarAhead, column = Col::kDateColumn, false;
  incomplete = true;
  if (BusinessMode() && !ForeignMode() && no_gst) return reason = kGSTRequired, column = Col::kGSTColumn, false;
  incomplete = false;
  if (ForeignMode() && !InForeignRange(engine.CellValue(Col::kAmountColumn).ToCurrency())) {
    grid_.Engine().PostMessage(kForeignRangeMessage);
  }
  return true;
}

bool InvoiceEntry::IsDataValid(std::string& InvalidReason, bool& Incomplete) {
  InvalidReason.clear();
  try {
    std::string reason;
    int column = 0;
    bool incomplete = false;
    if (!CheckCurrentRow(reason, incomplete, column)) {
      Incomplete = incomplete;
      return Fail(InvalidReason, reason, column);
    }
    const platform::Lifetime::Watch control = lifetime_.Watched();
    grid_.Engine().CommitRow();
    if (!control.Alive()) return false;
    if (number_refused_ || amount_refused_) return false;
    for (int i = 0; i < store_.Count(); ++i) {
      const InvoiceStore::Row& row = store_.At(i);
      if (InvoiceStore::IsBlank(row)) continue;
      if (NumberTooLong(row.number)) return Fail(InvalidReason, kNumberTooLong, Col::kNumberColumn);
      const Currency lines = LinesTotal(row);
      const Currency due = Distributable(row);
      if (lines.IsZero() && !due.IsZero()) return Fail(InvalidReason, kNoDistribution, Col::kViewDistColumn);
      if (lines != due) return Fail(InvalidReason, kNotEqual, Col::kViewDistColumn);
    }
    const auto current = grid_.Engine().CurrentRow();
    if (current && *current < store_.Count()) {
      const InvoiceStore::Row& row = store_.At(*current);
      if (!InvoiceStore::IsBlank(row)) {
        if (Trimmed(row.number).empty()) return Fail(InvalidReason, kNumberRequired, Col::kNumberColumn);
        if (NumberTooLong(row.number)) return Fail(InvalidReason, kNumberTooLong, Col::kNumberColumn);
        if (row.amount && LinesTotal(row).IsZero() && !Distributable(row).IsZero()) {
          return Fail(InvalidReason, kNoDistribution, Col::kViewDistColumn);
        }
        if (BusinessMode() && !ForeignMode() && row.amount && !row.gst) {
          return Fail(InvalidReason, kGSTRequired, Col::kGSTColumn);
        }
      }
    }
  } catch (const HostError&) {
    return false;
  }
  return true;
}

bool InvoiceEntry::DataEntryComplete() const {
  const platform::GridEngine& engine = grid_.Engine();
  return !engine.IsEditing() && !engine.RowChanged();
}

int InvoiceEntry::CheckedRow(std::int16_t TheRow) const {
  if (TheRow < 1 || TheRow > store_.Count()) {
    throw HostError::Object(kMissingRow, "InvoiceValues", "The row " + std::to_string(TheRow) + " does not exist");
  }
  return TheRow - 1;
}

std::shared_ptr<clsInvoice> InvoiceEntry::InvoiceValues(std::int16_t TheRow) const {
  const InvoiceStore::Row& row = store_.At(CheckedRow(TheRow));
  auto invoice = std::make_shared<clsInvoice>();
  invoice->ID = row.id;
  invoice->InvoiceDate = row.date.value_or(Date());
  invoice->InvoiceNo = row.number;
  invoice->InvoiceAmount = row.amount.value_or(Currency());
  invoice->GSTAmount = row.gst.value_or(Currency());
  invoice->CompanyExpense = row.expense.value_or(Currency());
  invoice->PaymentFor = row.payment_for;
  invoice->EmailFilename = row.email;
  // The lines are shared with the store, copied in only when the host reaches one.
  invoice->Distributions = std::make_shared<clsDistributions>(store_.LineBlock(row.id));
  return invoice;
}

Currency InvoiceEntry::TotalAmount() const { return ForeignMode() ? store_.TotalExpense() : store_.TotalAmount(); }
Currency InvoiceEntry::TotalGST() const { return ForeignMode() ? Currency() : store_.TotalGST(); }
Currency InvoiceEntry::TotalExpense() const { return store_.TotalExpense(); }
Currency InvoiceEntry::TotalForeignAmount() const { return store_.TotalAmount(); }

void InvoiceEntry::DeleteCurrentRow() {
  const platform::Lifetime::Watch control = lifetime_.Watched();
  deleting_ = true;
  grid_.Engine().DeleteCurrentRow();  // raises Recalculate
  if (!control.Alive()) return;
  deleting_ = false;
  history_.Clear();
}

void InvoiceEntry::SetInvoiceValues(std::int16_t /*TheRow*/, const Variant& value) {
  (void)value.ToObjectOf<clsInvoice>();
}

bool InvoiceEntry::AddInvoice(Date InvoiceDate, const std::string& InvoiceNo, Currency InvoiceAmount,
                              const Variant& GST, const Variant& bShowDistribution) {
  // Everything that can raise is worked out before the list is touched: a failed call leaves
  // no row behind.
  InvoiceStore::Row row;
  row.date = InvoiceDate;
  row.number = InvoiceNo;
  row.amount = InvoiceAmount;
  if (BusinessMode()) {
    const Currency gst = GST.IsEmpty() ? Currency() : GST.ToCurrency();
    row.gst = gst;
    row.expense = InvoiceAmount - gst;
  }
  bool out_of_range = false;
  if (ForeignMode()) {
    InvoiceStore::Row converted = row;
    const Conversion conversion = Converted(converted, Col::kAmountColumn);
    out_of_range = conversion == Conversion::kOutOfRange;
    if (conversion == Conversion::kDone) row = std::move(converted);
  }
  const bool show = !bShowDistribution.IsEmpty() && bShowDistribution.ToBool();
  const int index = store_.TargetRowForAdd("AddInvoice");
  // A blank row being filled keeps what the host attached to it, but starts without a split:
  // lines left from what it held before are dropped with their identifier, not orphaned.
  store_.ReleaseId(index);
  row.payment_for = store_.At(index).payment_for;
  row.email = store_.At(index).email;
  store_.Put(index, std::move(row));
  history_.Clear();
  if (out_of_range) grid_.Engine().PostMessage(kForeignRangeMessage);
  Rebind();
  if (show) {
    grid_.Engine().SetCurrentRow(index);
    const platform::Lifetime::Watch control = lifetime_.Watched();
    ShowDistribution();
    if (control.Alive()) RepositionAfterBulk();
  }
  return false;
}

void InvoiceEntry::Rebind() {
  grid_.Engine().Rebind();
  host_.ValueChanged(kCurrentRow);
  ShowCurrentLines();
  ScheduleTotals();
}

void InvoiceEntry::RepositionAfterBulk() {
  platform::GridEngine& engine = grid_.Engine();
  engine.SetCurrentRow(engine.FirstRow());
  const int count = InvoiceCount();
  if (count > 0 && count <= store_.Count()) engine.SetCurrentRow(count - 1);
}

void InvoiceEntry::SetEmailFilename(std::int16_t TheRow, const std::string& TheEmailAddress) {
  store_.SetEmail(CheckedRow(TheRow), TheEmailAddress);
  history_.Clear();
}

std::int16_t InvoiceEntry::InvoiceCount_DetailLines() const {
  int lines = 0;
  for (int i = 0; i < store_.Count(); ++i) lines += DetailLineCount(store_.At(i).number);
  if (lines > InvoiceStore::kMaxRows) throw HostError::Overflow("InvoiceCount_DetailLines");
  return static_cast<std::int16_t>(lines);
}

std::int16_t InvoiceEntry::InvoiceCount() const { return static_cast<std::int16_t>(store_.NumberedRows()); }

std::int16_t InvoiceEntry::CurrentRow() const {
  const auto current = grid_.Engine().CurrentRow();
  // The add-new row of a full list has no row number a 16-bit row can hold.
  if (!current || *current >= InvoiceStore::kMaxRows) return 0;
  return static_cast<std::int16_t>(*current + 1);
}

void InvoiceEntry::SetCurrentRow(std::int16_t row) { grid_.Engine().SetCurrentRow(row - 1); }

void InvoiceEntry::DeleteByEmailFilename(const std::string& strFilename) {
  const platform::Lifetime::Watch control = lifetime_.Watched();
  if (!DataEntryComplete()) DeleteCurrentRow();  // raises Recalculate
  if (!control.Alive()) return;
  const std::string name = Upper(Trimmed(strFilename));
  if (name.empty()) return;
  store_.RemoveIf([&name](const InvoiceStore::Row& row) { return Upper(row.email) == name; });
  history_.Clear();
  Rebind();
  RepositionAfterBulk();
}

void InvoiceEntry::SetCurrencyRate(float rate) {
  const Rate kept = Rate::FromSingle(rate, "CurrencyRate");
  // A rate past the currency range converts no amount: refused like NaN and infinity.
  (void)kept.ToCurrency("CurrencyRate");
  currency_rate_ = kept;
}

void InvoiceEntry::SetIPCurrency(const std::string& code) {
  ip_currency_ = code;
  history_.Clear();
  // The totals read other columns in foreign-currency mode.
  AnnounceSummary();
}

void InvoiceEntry::SetOtherCurrencyCode(const Variant& code) { context_.SetCurrencyCode(Text(code)); }

bool InvoiceEntry::ForeignMode() const { return ip_currency_ != LibraryContext::kHomeCurrency; }

int InvoiceEntry::LastAmountColumn() const {
  return BusinessMode() || ForeignMode() ? Col::kExpenseColumn : Col::kAmountColumn;
}

void InvoiceEntry::ParseInvoiceNo(const std::string& sInvoiceNo) { parsed_lines_ = WrapDetailLines(sInvoiceNo); }

std::vector<InvoiceOutputLine> InvoiceEntry::PassInvoiceValues(std::int16_t TheRow, bool& bMultiple) {
  const InvoiceStore::Row& row = store_.At(CheckedRow(TheRow));
  ParseInvoiceNo(row.number);
  std::vector<InvoiceOutputLine> out;
  for (const std::string& text : parsed_lines_) {
    InvoiceOutputLine line;
    line.Text = text;
    if (out.empty()) {
      line.First = true;
      line.InvoiceDate = row.date.value_or(Date());
      line.InvoiceAmount = row.amount.value_or(Currency());
      line.GSTAmount = row.gst.value_or(Currency());
      line.CompanyExpense = row.expense.value_or(Currency());
    }
    out.push_back(std::move(line));
  }
  bMultiple = out.size() > 1;
  return out;
}

void InvoiceEntry::SetupIPGrid() {
  platform::GridEngine& engine = grid_.Engine();
  const bool foreign = ForeignMode();
  const bool wide = foreign || BusinessMode();
  history_.Clear();
  engine.SetColumnVisible(Col::kGSTColumn, wide);
  engine.SetColumnVisible(Col::kExpenseColumn, wide);
  engine.SetColumnLocked(Col::kGSTColumn, foreign);
  engine.SetColumnLocked(Col::kExpenseColumn, !foreign);
  if (foreign) {
    engine.SetColumnCaption(Col::kAmountColumn, "Invoice Amount (" + context_.CurrencyCode() + ")");
    engine.SetColumnCaption(Col::kGSTColumn, "Accounting Rate");
    engine.SetColumnCaption(Col::kExpenseColumn, "Invoice Amount (CAD)");
    platform::TwipsRect rect = grid_.Rect();
    rect.width = kForeignGridWidth;
    grid_.SetRect(rect);
  } else {
    engine.SetColumnCaption(Col::kAmountColumn, "Invoice Amount");
    engine.SetColumnCaption(Col::kGSTColumn, "Refundable GST/HST");
    engine.SetColumnCaption(Col::kExpenseColumn, "Net Expense");
    platform::TwipsRect rect = grid_.Rect();
    rect.width = std::max(rect.width == kForeignGridWidth ? 0 : rect.width, kInvoiceGridRect.width);
    grid_.SetRect(rect);
  }
  ScheduleTotals();
}

void InvoiceEntry::InitProperties() {
  properties_ = InvoiceProperties{};
  ip_currency_ = std::string(LibraryContext::kHomeCurrency);
  surface_.SetBackColor(properties_.back_color);
  ApplyColors();
  ApplyEnabled();
  Clear();
  AnnounceStoredProperties();
}

void InvoiceEntry::ReadProperties(const platform::PropertyBag& bag) {
  properties_ = InvoiceProperties::Read(bag);
  surface_.SetBackColor(properties_.back_color);
  ApplyColors();
  ApplyEnabled();
  ip_currency_ = std::string(LibraryContext::kHomeCurrency);
  Clear();
  AnnounceStoredProperties();
  AnnounceSummary();
}

}  // namespace zenta

namespace zenta {

bool InvoiceEntry::RunEditCommand(platform::KeyDown& key) {
  const entry::EditCommand command = entry::EditCommandOf(key);
  if (command == entry::EditCommand::kNone) return false;
  key.key_code = 0;
  switch (command) {
    case entry::EditCommand::kCopy: CopyCurrentRow(); break;
    case entry::EditCommand::kPaste: PasteText(host_.ClipboardText()); break;
    case entry::EditCommand::kUndo: Undo(); break;
    case entry::EditCommand::kRedo: Redo(); break;
    case entry::EditCommand::kNone: break;
  }
  return true;
}

void InvoiceEntry::PasteText(const std::string& text) { InvoiceClipboard(*this).Paste(text); }

void InvoiceEntry::CopyCurrentRow() { InvoiceClipboard(*this).CopyCurrentRow(); }

void InvoiceEntry::RecordStep(InvoiceStore before) {
  auto kept = std::make_shared<InvoiceStore>(std::move(before));
  history_.Push([this, kept] {
    std::swap(store_, *kept);
    ShowRestoredList();
  });
}

void InvoiceEntry::RecordRowEdit(int index, RowEdit edit) {
  auto kept = std::make_shared<RowEdit>(std::move(edit));
  history_.Push([this, index, kept] {
    if (!kept->appended) {
      InvoiceStore::Row now = store_.At(index);
      store_.Put(index, std::move(kept->before));
      kept->before = std::move(now);
    } else if (index < store_.Count()) {
      // Undone: the row goes, kept for a redo. Its lines went with a split undone before.
      kept->before = store_.At(index);
      kept->before.id = 0;
      store_.Remove(index);
    } else {
      store_.AppendRow({});
      store_.Put(index, std::move(kept->before));
    }
    ShowRestoredList();
  });
}

void InvoiceEntry::RecordSplit(int index, std::vector<InvoiceLine> lines, std::string payment_for) {
  struct Split {
    std::vector<InvoiceLine> lines;
    std::string payment_for;
  };
  auto kept = std::make_shared<Split>(Split{std::move(lines), std::move(payment_for)});
  history_.Push([this, index, kept] {
    // A row typed again by a redo has no identifier yet.
    store_.EnsureId(index);
    const std::int16_t id = store_.At(index).id;
    const auto* now = store_.Lines(id);
    std::vector<InvoiceLine> current = now ? *now : std::vector<InvoiceLine>{};
    std::string payment_for_now = store_.At(index).payment_for;
    store_.SetLines(id, std::move(kept->lines));
    store_.SetPaymentFor(index, std::move(kept->payment_for));
    kept->lines = std::move(current);
    kept->payment_for = std::move(payment_for_now);
    restored_split_row_ = static_cast<std::int16_t>(index + 1);
    ShowRestoredList();
  });
}

void InvoiceEntry::ShowRestoredList() {
  grid_.Engine().CancelEdit();
  Rebind();
  ShowCurrentLines(true);
  AnnounceSummary();
}

bool InvoiceEntry::Undo() {
  platform::GridEngine& engine = grid_.Engine();
  // Typing not yet stored in the list is what goes first.
  if (engine.IsEditing() || engine.RowChanged()) {
    engine.CancelEdit();
    return true;
  }
  restored_split_row_.reset();
  if (!history_.Undo()) return false;
  AnnounceRestored();
  return true;
}

void InvoiceEntry::AnnounceRestored() {
  // The host hears what it would after the payer's reverse edit: a split accepted again, then
  // the totals.
  if (const std::optional<std::int16_t> row = std::exchange(restored_split_row_, std::nullopt)) {
    std::int16_t the_row = *row;
    if (!events_.DistributionEntered(the_row)) return;
  }
  events_.Recalculate();
}

bool InvoiceEntry::Redo() {
  platform::GridEngine& engine = grid_.Engine();
  if (!history_.CanRedo()) return false;
  engine.CancelEdit();
  restored_split_row_.reset();
  history_.Redo();
  AnnounceRestored();
  return true;
}

}  // namespace zenta
