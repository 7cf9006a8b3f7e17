#include "zenta/controls/distribution/distribution_model.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <limits>
#include <vector>

#include "zenta/controls/distribution/rate_conversion.h"
#include "zenta/core/host_error.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"

namespace zenta {
namespace {

using Model = DistributionModel;

Currency Money(const char* text) { return Currency::FromText(text); }
Rate RateOf(const char* text) { return *Rate::Parse(text); }

// One line of the table: account, column 2, column 3 (nullptr leaves the cell unset).
struct Line {
  const char* account = nullptr;
  Variant payment;
  Variant home;
};

std::shared_ptr<platform::Array2D> TableOf(const std::vector<Line>& lines) {
  auto table = std::make_shared<platform::Array2D>(0, static_cast<int>(lines.size()) - 1, 0, 3);
  for (int row = 0; row < static_cast<int>(lines.size()); ++row) {
    const Line& line = lines[static_cast<std::size_t>(row)];
    if (line.account) table->Set(row, Model::kAccountColumn, Variant(line.account));
    table->Set(row, Model::kPaymentColumn, line.payment);
    table->Set(row, Model::kHomeColumn, line.home);
  }
  return table;
}

struct TotalsCase {
  const char* name;
  std::vector<Line> lines;
  bool visible_invoice;
  bool fx;
  std::optional<const char*> total;  // nullopt: the computation gives up
  const char* payment_footer;
  const char* home_footer;
};

class DistributionTotals : public ::testing::TestWithParam<TotalsCase> {};

TEST_P(DistributionTotals, SumTheAmountColumnExactly) {
  const TotalsCase& c = GetParam();
  Model model;
  model.SetTable(TableOf(c.lines));
  model.SetVisibleInvoice(c.visible_invoice);
  model.SetIsFXPayment(c.fx);
  const std::optional<Currency> total = model.CalculateDistAmounts();
  if (!c.total) {
    EXPECT_FALSE(total.has_value());
    return;
  }
  ASSERT_TRUE(total.has_value());
  EXPECT_EQ(*total, Money(*c.total));
  EXPECT_EQ(model.DistributedTotal(), Money(*c.total));
  EXPECT_EQ(model.FooterText(Model::kPaymentColumn), c.payment_footer);
  EXPECT_EQ(model.FooterText(Model::kHomeColumn), c.home_footer);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DistributionTotals,
    ::testing::Values(
        TotalsCase{"TwoLines", {{"A", "60.00", {}}, {"B", "40.00", {}}}, false, false, "100", "100.00", "0.00"},
        TotalsCase{"NegativeLine", {{"A", "120.00", {}}, {"B", "-20.00", {}}}, false, false, "100", "100.00", "0.00"},
        TotalsCase{"AmountWithoutAccountCounts", {{nullptr, "12.34", {}}}, false, false, "12.34", "12.34", "0.00"},
        TotalsCase{"EmptyTextAndUnsetCellsSkipped", {{"A", "", {}}, {"B", {}, {}}}, false, false, "0", "0.00", "0.00"},
        TotalsCase{"CurrencyValues", {{"A", Money("0.01"), {}}, {"B", Money("0.02"), {}}}, false, false, "0.03",
                   "0.03", "0.00"},
        TotalsCase{"HomeColumnKeptOnlyForInvoices", {{"A", "10", "13.5"}}, false, false, "10", "10.00", "0.00"},
        TotalsCase{"FxTotalIsTheCanadianColumn", {{"A", "100", "135"}, {"B", "10", "13.5"}}, true, true, "148.5",
                   "110.00", "148.50"},
        TotalsCase{"FxWithoutInvoiceTotalsZeroHome", {{"A", "100", "135"}}, false, true, "0", "100.00", "0.00"},
        TotalsCase{"TextThatIsNoNumberGivesUp", {{"A", "12", {}}, {"B", "abc", {}}}, false, false, std::nullopt, "",
                   ""},
        TotalsCase{"NullGivesUp", {{"A", Variant::Null(), {}}}, false, false, std::nullopt, "", ""},
        TotalsCase{"OverflowGivesUp", {{"A", Currency::Max(), {}}, {"B", "1", {}}}, false, false, std::nullopt, "",
                   ""}),
    [](const auto& param_info) { return std::string(param_info.param.name); });

TEST(DistributionTotalsState, AFailedTotalKeepsTheLastGoodOne) {
  Model model;
  auto table = TableOf({{"A", "5.00", {}}});
  model.SetTable(table);
  ASSERT_EQ(model.CalculateDistAmounts(), Money("5"));
  table->Set(0, Model::kPaymentColumn, Variant("five"));
  EXPECT_FALSE(model.CalculateDistAmounts().has_value());
  EXPECT_EQ(model.DistributedTotal(), Money("5"));
  EXPECT_EQ(model.FooterText(Model::kPaymentColumn), "5.00");
}

TEST(DistributionTotalsState, FooterRefreshLeavesTheDistributedTotal) {
  Model model;
  auto table = TableOf({{"A", "5.00", {}}});
  model.SetTable(table);
  model.CalculateDistAmounts();
  table->Set(0, Model::kPaymentColumn, Variant("7.25"));
  model.RefreshFooters();
  EXPECT_EQ(model.FooterText(Model::kPaymentColumn), "7.25");
  EXPECT_EQ(model.DistributedTotal(), Money("5"));
}

TEST(DistributionTotalsState, MissingTableCountsAsNoRows) {
  Model model;
  EXPECT_EQ(model.CalculateDistAmounts(), Currency());
  EXPECT_EQ(model.DistributionCount(), 0);
  EXPECT_TRUE(model.CheckAmountsEntered().may_accept);
  EXPECT_FALSE(model.FillRemainingAmount(0));
}

struct CountCase {
  std::vector<Line> lines;
  bool fx;
  int count;
};

class DistributionCountTable : public ::testing::TestWithParam<CountCase> {};

TEST_P(DistributionCountTable, IsOneAfterTheLastAmount) {
  Model model;
  model.SetTable(TableOf(GetParam().lines));
  model.SetIsFXPayment(GetParam().fx);
  EXPECT_EQ(model.DistributionCount(), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(Table, DistributionCountTable,
                         ::testing::Values(CountCase{{}, false, 0}, CountCase{{{"A", {}, {}}, {"B", "", {}}}, false, 0},
                                           CountCase{{{"A", "1", {}}, {}, {"C", "2", {}}}, false, 3},
                                           CountCase{{{"A", "1", {}}, {"B", "2", {}}, {"C", {}, {}}}, false, 2},
                                           CountCase{{{"A", "1", {}}, {"B", "2", {}}}, true, 0},
                                           CountCase{{{"A", "1", "1.35"}, {"B", "2", {}}}, true, 1}));

TEST(DistributionAmount, RecordsTheInitialLastRowAndRefusesBeyondSixteenBits) {
  Model model;
  model.SetTable(TableOf({{"A", "1", {}}, {"B", "2", {}}}));
  model.SetAmountToDistribute(Money("3"));
  EXPECT_EQ(model.InitialLastRow(), 1);

  model.SetTable(std::make_shared<platform::Array2D>(0, 32768, 0, 3));
  EXPECT_THROW(model.SetAmountToDistribute(Money("4")), HostError);
  EXPECT_EQ(model.AmountToDistribute(), Money("3"));
  EXPECT_EQ(model.InitialLastRow(), 1);
}

struct CellCase {
  int column;
  const char* typed;
  const char* account;
  Model::CellVerdict verdict;
  const char* stored;
};

class DistributionCellValidation : public ::testing::TestWithParam<CellCase> {};

TEST_P(DistributionCellValidation, NormalisesAmountsAndRefusesBadLines) {
  const CellCase& c = GetParam();
  Model model;
  std::string text = c.typed;
  EXPECT_EQ(model.ValidateCell(c.column, text, c.account, Variant()), c.verdict) << c.typed;
  EXPECT_EQ(text, c.stored);
}

const std::string k30(30, 'A');
const std::string k31(31, 'A');

INSTANTIATE_TEST_SUITE_P(
    Table, DistributionCellValidation,
    ::testing::Values(CellCase{2, "150", "", Model::CellVerdict::Accept, "1.50"},
                      CellCase{2, "12345", "X", Model::CellVerdict::Accept, "123.45"},
                      CellCase{2, "150.5", "X", Model::CellVerdict::Accept, "150.5"},
                      CellCase{2, "-", "X", Model::CellVerdict::Accept, "0.00"},
                      CellCase{2, ".", "X", Model::CellVerdict::Accept, "0"},
                      CellCase{2, "-500", "X", Model::CellVerdict::Accept, "-5.00"},
                      CellCase{2, "", "X", Model::CellVerdict::AmountRequired, ""},
                      CellCase{2, "", "", Model::CellVerdict::Accept, ""},
                      CellCase{1, k30.c_str(), "", Model::CellVerdict::Accept, k30.c_str()},
                      CellCase{1, k31.c_str(), "", Model::CellVerdict::AccountTooLong, k31.c_str()},
                      CellCase{0, "x", "", Model::CellVerdict::Accept, "x"}));

TEST(DistributionCellValidationState, EditRejectedIsSetByALongAccountAndClearedByTheNextAccountCheck) {
  Model model;
  std::string text = k31;
  model.ValidateCell(Model::kAccountColumn, text, "", Variant());
  EXPECT_TRUE(model.EditRejected());
  text = "SHORT";
  model.ValidateCell(Model::kAccountColumn, text, "", Variant());
  EXPECT_FALSE(model.EditRejected());
  text = "";
  EXPECT_EQ(model.ValidateCell(Model::kPaymentColumn, text, "X", Variant()), Model::CellVerdict::AmountRequired);
  EXPECT_FALSE(model.EditRejected());
}

TEST(DistributionCellValidationState, InFxTheCanadianCellIsTheOneRequired) {
  Model model;
  model.SetIsFXPayment(true);
  std::string text = "100.00";
  EXPECT_EQ(model.ValidateCell(Model::kPaymentColumn, text, "X", Variant()), Model::CellVerdict::AmountRequired);
  model.SetVisibleInvoice(true);  // the conversion fills the Canadian cell
  EXPECT_EQ(model.ValidateCell(Model::kPaymentColumn, text, "X", Variant()), Model::CellVerdict::Accept);
  model.SetVisibleInvoice(false);
  EXPECT_EQ(model.ValidateCell(Model::kPaymentColumn, text, "X", Variant("135.00")), Model::CellVerdict::Accept);
}

struct ConversionCase {
  const char* rate;
  int column;
  const char* value;
  int target;
  const char* converted;
};

class DistributionConversion : public ::testing::TestWithParam<ConversionCase> {};

TEST_P(DistributionConversion, RoundsHalfToEvenAtTheCent) {
  const ConversionCase& c = GetParam();
  Model model;
  model.SetVisibleInvoice(true);
  model.SetCurrencyRate(RateOf(c.rate));
  const auto converted = model.ConvertAmount(c.column, Variant(c.value));
  ASSERT_TRUE(converted.has_value());
  EXPECT_EQ(converted->column, c.target);
  EXPECT_EQ(converted->value, Money(c.converted));
}

INSTANTIATE_TEST_SUITE_P(Table, DistributionConversion,
                         ::testing::Values(ConversionCase{"1.35", 2, "100.00", 3, "135.00"},
                                           ConversionCase{"1.35", 3, "135.00", 2, "100.00"},
                                           ConversionCase{"1.35", 2, "-100", 3, "-135"},
                                           // 0.01495 and 0.01485: one rounding, to the even cent.
                                           ConversionCase{"0.0299", 2, "0.50", 3, "0.01"},
                                           ConversionCase{"0.0297", 2, "0.50", 3, "0.01"},
                                           ConversionCase{"0.5", 2, "0.05", 3, "0.02"},
                                           ConversionCase{"0.5", 2, "0.07", 3, "0.04"},
                                           ConversionCase{"3", 3, "1.00", 2, "0.33"},
                                           ConversionCase{"3", 3, "2.00", 2, "0.67"},
                                           ConversionCase{"-2", 3, "1.00", 2, "-0.50"}));

TEST(DistributionConversionLimits, NothingWithoutInvoiceRateOrNumber) {
  Model model;
  model.SetCurrencyRate(RateOf("1.35"));
  EXPECT_FALSE(model.ConvertAmount(2, Variant("100")).has_value());
  model.SetVisibleInvoice(true);
  EXPECT_FALSE(model.ConvertAmount(2, Variant("")).has_value());
  EXPECT_FALSE(model.ConvertAmount(2, Variant("x")).has_value());
  EXPECT_FALSE(model.ConvertAmount(1, Variant("100")).has_value());
  model.SetCurrencyRate(Rate());
  EXPECT_FALSE(model.ConvertAmount(3, Variant("100")).has_value());
}

TEST(DistributionConversionLimits, OutOfRangeRaisesRatherThanWraps) {
  EXPECT_THROW(ToHomeAmount(Currency::Max(), RateOf("2")), HostError);
  EXPECT_THROW(FromHomeAmount(Currency::Max(), RateOf("0.5")), HostError);
  EXPECT_THROW(FromHomeAmount(Money("1"), Rate()), HostError);
}

struct FillCase {
  const char* name;
  std::vector<Line> lines;
  std::optional<int> changed_row;  // the line just stored
  bool changed;
  std::vector<const char*> amounts;  // column 2 of every row afterwards ("" unset)
};

class DistributionFill : public ::testing::TestWithParam<FillCase> {};

TEST_P(DistributionFill, LeavesTheLinesAddingUpToTheAmount) {
  const FillCase& c = GetParam();
  Model model;
  auto table = TableOf(c.lines);
  model.SetTable(table);
  model.SetAmountToDistribute(Money("100"));
  model.CalculateDistAmounts();
  EXPECT_EQ(model.FillRemainingAmount(c.changed_row), c.changed);
  ASSERT_EQ(table->RowCount(), static_cast<int>(c.amounts.size()));
  for (int row = 0; row < table->RowCount(); ++row) {
    const Variant cell = table->Get(row, Model::kPaymentColumn);
    const char* expected = c.amounts[static_cast<std::size_t>(row)];
    if (*expected == '\0') {
      EXPECT_TRUE(Model::IsEmptyCell(cell)) << "row " << row;
    } else {
      EXPECT_EQ(cell.ToCurrency(), Money(expected)) << "row " << row;
    }
  }
  EXPECT_EQ(model.CalculateDistAmounts(), Money("100"));
}

INSTANTIATE_TEST_SUITE_P(
    Table, DistributionFill,
    ::testing::Values(
        FillCase{"AppendsAfterTheLastLine", {{"A", "60", {}}}, 0, true, {"60", "40"}},
        FillCase{"TakesTheNextEmptyLineNotTheLastOfAPaddedTable",
                 {{"A", "60", {}}, {}, {}, {}, {}}, 0, true, {"60", "40", "", "", ""}},
        FillCase{"TakesTheFirstEmptyLineAfterTheOneStored",
                 {{"A", "10", {}}, {}, {"B", "20", {}}, {}}, 2, true, {"10", "", "20", "70"}},
        FillCase{"AppendsToAnEmptyTable", {}, std::nullopt, true, {"100"}},
        FillCase{"NothingLeftAppendsNothing", {{"A", "100", {}}}, 0, false, {"100"}},
        FillCase{"RecomputesTheRemainderLine", {{"A", "60", {}}, {"B", "30", {}}, {nullptr, "40", {}}}, 1, true,
                 {"60", "30", "10"}},
        FillCase{"RecomputesARemainderLineAboveTheOneStored",
                 {{"A", "50", {}}, {nullptr, "20", {}}, {"B", "20", {}}}, 2, true, {"50", "30", "20"}},
        FillCase{"RecomputesTheCallersOwnRemainderLine", {{nullptr, "30", {}}, {"A", "20", {}}}, 1, true,
                 {"80", "20"}},
        FillCase{"AZeroRemainderEmptiesItsLine", {{"A", "60", {}}, {"B", "40", {}}, {nullptr, "10", {}}}, 1, true,
                 {"60", "40", ""}},
        FillCase{"AnUpToDateRemainderChangesNothing", {{"A", "60", {}}, {nullptr, "40", {}}}, 0, false,
                 {"60", "40"}},
        FillCase{"OverDistributedGivesANegativeRemainder", {{"A", "130", {}}}, 0, true, {"130", "-30"}}),
    [](const auto& param_info) { return std::string(param_info.param.name); });

TEST(DistributionFillFx, PutsTheCanadianRemainderAndItsForeignAmount) {
  Model model;
  auto table = TableOf({{"A", "40", "54"}});
  model.SetTable(table);
  model.SetVisibleInvoice(true);
  model.SetIsFXPayment(true);
  model.SetCurrencyRate(RateOf("1.35"));
  model.SetAmountToDistribute(Money("135"));
  model.CalculateDistAmounts();
  ASSERT_TRUE(model.FillRemainingAmount(0));
  EXPECT_EQ(table->Get(1, Model::kHomeColumn).ToCurrency(), Money("81"));
  EXPECT_EQ(table->Get(1, Model::kPaymentColumn).ToCurrency(), Money("60"));
}

TEST(DistributionRemaining, CountsThePayersLinesNotTheRemainderLine) {
  Model model;
  auto table = TableOf({{"A", "60", {}}, {nullptr, "40", {}}});
  model.SetTable(table);
  model.SetAmountToDistribute(Money("100"));
  EXPECT_EQ(model.RemainderRow(), 1);
  EXPECT_EQ(model.Remaining(), Money("40"));
  EXPECT_FALSE(model.LinesAddUp());
  // An account makes the remainder line one of the payer's.
  table->Set(1, Model::kAccountColumn, Variant("B"));
  EXPECT_EQ(model.RemainderRow(), std::nullopt);
  EXPECT_TRUE(model.LinesAddUp());
  table->Set(1, Model::kPaymentColumn, Variant("not a number"));
  EXPECT_EQ(model.Remaining(), std::nullopt);
  EXPECT_FALSE(model.LinesAddUp());
}

TEST(DistributionAmountsCheck, WithNoRowsTheRejectedFlagStays) {
  Model model;
  model.SetTable(TableOf({}));
  std::string text = k31;
  model.ValidateCell(Model::kAccountColumn, text, "", Variant());
  EXPECT_TRUE(model.CheckAmountsEntered().may_accept);
  EXPECT_TRUE(model.EditRejected());
}

struct KeyCase {
  int column;
  std::string text;
  char32_t key;
  char32_t kept;
};

class DistributionCellKeys : public ::testing::TestWithParam<KeyCase> {};

TEST_P(DistributionCellKeys, FilterWhatACellTakes) {
  const KeyCase& c = GetParam();
  platform::CellKeyPressArgs args;
  args.column = c.column;
  args.key = c.key;
  args.text = c.text;
  args.selection_start = static_cast<int>(c.text.size());
  EXPECT_EQ(Model().FilterCellKey(args), c.kept);
}

INSTANTIATE_TEST_SUITE_P(Table, DistributionCellKeys,
                         ::testing::Values(KeyCase{1, "", U'a', U'A'}, KeyCase{1, "", U'"', 0},
                                           KeyCase{1, "", U'~', U'~'}, KeyCase{1, std::string(29, 'A'), U'b', U'B'},
                                           KeyCase{1, std::string(30, 'A'), U'b', 0},
                                           KeyCase{1, std::string(30, 'A'), U'-', U'-'},
                                           KeyCase{1, std::string(30, 'A'), U'.', U'.'},
                                           KeyCase{1, std::string(30, 'A'), 8, 8}, KeyCase{2, "1", U'a', 0},
                                           KeyCase{3, "1.2", U'.', 0}, KeyCase{2, "123456789", U'1', 0},
                                           KeyCase{2, "12", U'5', U'5'}, KeyCase{0, "", U'x', U'x'}));

TEST(DistributionCellText, ChangedTextIsCleanedAndUpperCased) {
  headless::Form form;
  headless::Host host(form);
  Model model;
  EXPECT_EQ(model.CleanCellText(1, "gl-100 \"x\"é", host), "GL-100 X");
  EXPECT_EQ(model.CleanCellText(2, "1,2a3.4-", host), "123.4-");
  host.SetDecimalSeparator(U',');
  EXPECT_EQ(model.CleanCellText(3, "1,2.3", host), "1,23");
  EXPECT_EQ(model.CleanCellText(0, "x", host), "x");
}

TEST(DistributionPaymentFor, UpperCasePrintableWithoutQuotes) {
  EXPECT_EQ(Model::PaymentForText("rent \"may\"~\t"), "RENT MAY");
  EXPECT_EQ(Model::FilterPaymentForKey(U'q'), U'Q');
  EXPECT_EQ(Model::FilterPaymentForKey(U'"'), U'\0');
  EXPECT_EQ(Model::FilterPaymentForKey(U'é'), U'\0');
  EXPECT_EQ(Model::FilterPaymentForKey(8), 8);
}

}  // namespace
}  // namespace zenta
