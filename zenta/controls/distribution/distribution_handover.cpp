#include "zenta/controls/distribution/distribution_handover.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "zenta/controls/distribution/rate_conversion.h"
#include "zenta/core/host_error.h"
#include "zenta/core/ole_color.h"
#include "zenta/platform/grid_engine.h"

namespace zenta {

namespace {

constexpr int kAccountColumn = 1;
constexpr int kAmountColumn = 2;
constexpr int kHomeColumn = 3;
constexpr int kLastColumn = 3;
constexpr int kMinimumRows = 5;
constexpr std::int64_t kOverlap = 20;

int Checked(std::int64_t twips, const char* source) {
  if (twips < std::numeric_limits<int>::min() || twips > std::numeric_limits<int>::max()) {
    throw HostError::Overflow(source);
  }
  return static_cast<int>(twips);
}

std::int64_t Frame(const platform::WindowMetrics& window, bool across) {
  return across ? std::int64_t{window.width} - window.scale_width : std::int64_t{window.height} - window.scale_height;
}

// The control's top-left on the screen: the whole outer-minus-scale difference of the form
// counts as its frame; a frame holding the control adds its position only.
struct Origin {
  std::int64_t left = 0;
  std::int64_t top = 0;
};

Origin ControlOrigin(const platform::ContainerMetrics& where) {
  const platform::WindowMetrics& c = where.container;
  Origin origin{std::int64_t{c.left} + where.control_left, std::int64_t{c.top} + where.control_top};
  const platform::WindowMetrics& form = where.container_is_form ? c : where.parent_form;
  if (!where.container_is_form) {
    origin.left += form.left;
    origin.top += form.top;
  }
  origin.left += Frame(form, true);
  origin.top += Frame(form, false);
  return origin;
}

bool IsEmptyCell(const Variant& value) {
  if (value.IsEmpty() || value.IsNull()) return true;
  return value.GetType() == Variant::Type::String && value.ToString().empty();
}

}  // namespace

DialogPlacement PlaceBelowRow(const platform::ContainerMetrics& where, int first_row_top, int row_height) {
  const Origin control = ControlOrigin(where);
  return {Checked(control.left, "PaymentDetails"),
          Checked(control.top + first_row_top + row_height - kOverlap, "PaymentDetails")};
}

DialogPlacement PlaceOverControl(const platform::ContainerMetrics& where, int width, int height) {
  const Origin control = ControlOrigin(where);
  const platform::WindowMetrics& form = where.container_is_form ? where.container : where.parent_form;
  const std::int64_t area_left = std::int64_t{form.left} + Frame(form, true);
  const std::int64_t area_top = std::int64_t{form.top} + Frame(form, false);
  auto kept = [](std::int64_t at, std::int64_t size, std::int64_t area_start, std::int64_t area_size) {
    return std::max(area_start, std::min(at, area_start + area_size - size));
  };
  return {Checked(kept(control.left, width, area_left, form.scale_width), "InvoiceEntry"),
          Checked(kept(control.top, height, area_top, form.scale_height), "InvoiceEntry")};
}

std::shared_ptr<platform::Array2D> LinesForDialog(const clsDistributions& lines) {
  const int rows = std::max(lines.Count(), kMinimumRows);
  auto table = std::make_shared<platform::Array2D>(0, rows - 1, 0, kLastColumn);
  int row = 0;
  for (const auto& line : lines) {
    if (line->Amount != Currency()) {
      table->Set(row, kAccountColumn, Variant(line->GLAccount));
      table->Set(row, kAmountColumn, Variant(line->Amount));
    }
    ++row;
  }
  return table;
}

void CopyLinesBack(const platform::Array2D& table, clsDistributions& lines, int amount_column) {
  lines.Clear();
  if (table.RowCount() == 0) return;
  for (int row = table.LowerBound(1); row <= table.UpperBound(1); ++row) {
    const Variant& amount = table.Get(row, amount_column);
    if (IsEmptyCell(amount)) continue;
    const Variant& account = table.Get(row, kAccountColumn);
    lines.Add(Variant(), IsEmptyCell(account) ? std::string() : account.ToString(), amount.ToCurrency());
  }
}

Currency SumOfLines(const clsDistributions& lines) {
  Currency sum;
  for (const auto& line : lines) sum += line->Amount;
  return sum;
}

void StyleDialogLines(platform::GridEngine& lines) {
  constexpr OleColor kLineBack = Rgb(160, 240, 220);
  lines.SetColumnColors(kAccountColumn, kLineBack, colors::kBlack);
  lines.SetColumnColors(kAmountColumn, kLineBack, colors::kBlack);
  platform::GridColors row_colors = lines.Colors();
  row_colors.even_row_back = Rgb(240, 240, 240);
  row_colors.odd_row_back = Rgb(255, 255, 255);
  lines.SetColors(row_colors);
}

namespace {

bool ForeignLayout(const FrmDistribution& dialog) { return dialog.Model().AmountColumn() == kHomeColumn; }

// The amount at the window's rate in the invoice's currency; none without a usable rate.
std::optional<Currency> AtRate(const FrmDistribution& dialog, Currency home) {
  try {
    return FromHomeAmount(home, dialog.Model().CurrencyRate());
  } catch (const HostError&) {
    return std::nullopt;
  }
}

}  // namespace

void ToForeignLayout(const FrmDistribution& dialog, platform::Array2D& table, const std::vector<std::optional<Currency>>& foreign) {
  if (!ForeignLayout(dialog) || table.RowCount() == 0) return;
  for (int row = table.LowerBound(1); row <= table.UpperBound(1); ++row) {
    const Variant amount = table.Get(row, kAmountColumn);
    if (IsEmptyCell(amount)) continue;
    const auto index = static_cast<std::size_t>(row - table.LowerBound(1));
    std::optional<Currency> typed = index < foreign.size() ? foreign[index] : std::nullopt;
    if (!typed) typed = AtRate(dialog, amount.ToCurrency());
    table.Set(row, kHomeColumn, amount);
    table.Set(row, kAmountColumn, typed ? Variant(*typed) : Variant());
  }
}

std::vector<std::optional<Currency>> ForeignAmountsBack(const FrmDistribution& dialog, const platform::Array2D& table) {
  std::vector<std::optional<Currency>> amounts;
  if (!ForeignLayout(dialog) || table.RowCount() == 0) return amounts;
  for (int row = table.LowerBound(1); row <= table.UpperBound(1); ++row) {
    if (IsEmptyCell(table.Get(row, kHomeColumn))) continue;
    const Variant& typed = table.Get(row, kAmountColumn);
    amounts.push_back(IsEmptyCell(typed) ? std::nullopt : std::optional<Currency>(typed.ToCurrency()));
  }
  return amounts;
}

void ProposeWholeAmount(FrmDistribution& dialog, platform::Array2D& table, const std::string& account, Currency amount) {
  table.Set(table.LowerBound(1), kAccountColumn, Variant(account));
  table.Set(table.LowerBound(1), ForeignLayout(dialog) ? kHomeColumn : kAmountColumn, Variant(amount));
  if (ForeignLayout(dialog)) {
    const auto foreign = AtRate(dialog, amount);
    table.Set(table.LowerBound(1), kAmountColumn, foreign ? Variant(*foreign) : Variant());
  }
  dialog.Grid().Engine().Rebind();
  dialog.CalculateDistAmounts();
}

}  // namespace zenta
