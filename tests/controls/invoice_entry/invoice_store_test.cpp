#include "zenta/controls/invoice_entry/invoice_store.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/error_number.h"
#include "zenta/core/host_error.h"

namespace zenta {
namespace {

InvoiceStore::Row Invoice(const char* number, const char* amount, const char* email = "") {
  InvoiceStore::Row row;
  row.date = *Date::FromYmd(2026, 1, 5);
  row.number = number;
  row.amount = Currency::FromText(amount);
  row.email = email;
  return row;
}

TEST(InvoiceStoreTest, BlankRowsAreReusedBeforeAppending) {
  InvoiceStore store;
  store.Put(store.TargetRowForAdd("AddInvoice"), Invoice("A", "1"));
  store.Put(store.TargetRowForAdd("AddInvoice"), Invoice("B", "2"));
  store.Put(store.TargetRowForAdd("AddInvoice"), Invoice("C", "3"));
  // The grid blanks the middle row: the next invoice lands there.
  store.WriteRow(1, {{InvoiceStore::kDateColumn, Variant()}, {InvoiceStore::kNumberColumn, Variant("  ")},
                     {InvoiceStore::kAmountColumn, Variant("")}});
  EXPECT_EQ(store.TargetRowForAdd("AddInvoice"), 1);
  store.Put(1, Invoice("D", "4"));
  EXPECT_EQ(store.TargetRowForAdd("AddInvoice"), 3);
  // An amount of 0 is a value, not a blank cell.
  InvoiceStore::Row zero;
  zero.amount = Currency();
  EXPECT_FALSE(InvoiceStore::IsBlank(zero));
}

TEST(InvoiceStoreTest, AFullListRaisesOverflowAndStaysAsItWas) {
  InvoiceStore store;
  for (int i = 0; i < InvoiceStore::kMaxRows; ++i) store.Put(store.TargetRowForAdd("AddInvoice"), Invoice("N", "1"));
  try {
    store.TargetRowForAdd("AddInvoice");
    FAIL() << "no overflow";
  } catch (const HostError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
  EXPECT_EQ(store.Count(), InvoiceStore::kMaxRows);
  EXPECT_THROW(store.AppendRow({}), HostError);
  EXPECT_EQ(store.Count(), InvoiceStore::kMaxRows);
}

TEST(InvoiceStoreTest, IdentifiersOfLiveRowsStayUniqueAndNonZeroAcrossWrapAround) {
  InvoiceStore store;
  store.Put(store.TargetRowForAdd("t"), Invoice("keep", "1"));
  ASSERT_TRUE(store.EnsureId(0));
  const std::int16_t kept = store.At(0).id;
  store.SetLines(kept, {{Variant(), "5100", Currency::FromText("1")}});
  // Open and delete distributions far beyond the 16-bit range.
  for (int i = 0; i < 70000; ++i) {
    const int row = store.TargetRowForAdd("t");
    store.Put(row, Invoice("x", "2"));
    store.EnsureId(row);
    EXPECT_NE(store.At(row).id, 0);
    ASSERT_NE(store.At(row).id, kept);
    store.Remove(row);
  }
  ASSERT_NE(store.Lines(kept), nullptr);
  EXPECT_EQ(store.Lines(kept)->size(), 1u);
  EXPECT_FALSE(store.EnsureId(0));
}

TEST(InvoiceStoreTest, RemovingRowsDropsTheirLines) {
  InvoiceStore store;
  for (const char* email : {"a.pdf", "b.pdf", "A.PDF"}) {
    const int row = store.TargetRowForAdd("t");
    store.Put(row, Invoice("n", "1", email));
    store.EnsureId(row);
    store.SetLines(store.At(row).id, {{Variant(), "5100", Currency::FromText("1")}});
  }
  const std::int16_t gone = store.At(0).id;
  EXPECT_EQ(store.RemoveIf([](const InvoiceStore::Row& row) { return row.email == "a.pdf"; }), 1);
  EXPECT_EQ(store.Lines(gone), nullptr);
  EXPECT_EQ(store.LineCount(), 2u);
  EXPECT_EQ(store.TotalAmount(), Currency::FromText("2"));
}

// Sums, numbered rows and line count worked out from the rows themselves.
struct Summary {
  Currency amount, gst, expense, line_amounts;
  int numbered = 0;
  std::size_t lines = 0;
  bool operator==(const Summary&) const = default;
};

Summary Scanned(const InvoiceStore& store) {
  Summary s;
  for (int i = 0; i < store.Count(); ++i) {
    const InvoiceStore::Row& row = store.At(i);
    s.amount += row.amount.value_or(Currency());
    s.gst += row.gst.value_or(Currency());
    s.expense += row.expense.value_or(Currency());
    s.numbered += row.number.find_first_not_of(' ') != std::string::npos ? 1 : 0;
    if (const auto* lines = store.Lines(row.id)) {
      s.lines += lines->size();
      for (const InvoiceLine& line : *lines) s.line_amounts += line.Amount;
    }
  }
  return s;
}

Summary Kept(const InvoiceStore& store) {
  Currency line_amounts;
  for (int i = 0; i < store.Count(); ++i) line_amounts += store.LinesTotal(store.At(i).id);
  return {store.TotalAmount(), store.TotalGST(), store.TotalExpense(), line_amounts, store.NumberedRows(), store.LineCount()};
}

TEST(InvoiceStoreTest, SumsCountsAndLinesFollowEveryKindOfChange) {
  InvoiceStore store;
  int announced = 0;
  store.OnSummaryChanged([&] { ++announced; });
  std::mt19937 random(16);
  auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  auto amount = [&] { return Currency::FromUnits(static_cast<std::int64_t>(random() % 2'000'000) - 1'000'000); };
  auto invoice = [&] {
    InvoiceStore::Row row;
    row.number = pick(4) == 0 ? "   " : "N" + std::to_string(pick(100));
    if (pick(5) != 0) row.amount = amount();
    if (pick(2) == 0) row.gst = amount();
    if (pick(2) == 0) row.expense = amount();
    row.email = pick(3) == 0 ? "x" : "";
    return row;
  };
  for (int step = 0; step < 3000; ++step) {
    const int count = store.Count();
    switch (pick(8)) {
      case 0:
      case 1: {
        // A replaced row keeps its identifier, and with it its lines.
        const int row = pick(2) == 0 || count == 0 ? store.TargetRowForAdd("t") : pick(count);
        InvoiceStore::Row value = invoice();
        value.id = store.At(row).id;
        store.Put(row, std::move(value));
        break;
      }
      case 2:
        if (count > 0) {
          store.WriteRow(pick(count), {{InvoiceStore::kNumberColumn, Variant(pick(2) ? "W" : " ")},
                                       {InvoiceStore::kAmountColumn, pick(2) ? Variant(amount()) : Variant("")},
                                       {InvoiceStore::kExpenseColumn, Variant(amount())}});
        }
        break;
      case 3: store.AppendRow({{InvoiceStore::kGSTColumn, Variant(amount())}, {InvoiceStore::kNumberColumn, Variant("A")}}); break;
      case 4: if (count > 0) store.Remove(pick(count)); break;
      case 5: store.RemoveIf([](const InvoiceStore::Row& row) { return row.email == "x"; }); break;
      case 6:
        if (count > 0) {
          const int row = pick(count);
          store.EnsureId(row);
          store.SetLines(store.At(row).id, std::vector<InvoiceLine>(static_cast<std::size_t>(pick(4)), {Variant(), "5100", amount()}));
        }
        break;
      default: if (pick(40) == 0) store.Clear(); break;
    }
    ASSERT_EQ(Kept(store), Scanned(store)) << "after step " << step;
  }
  EXPECT_GT(announced, 1000);
}

TEST(InvoiceStoreTest, ASumOutOfRangeRaisesOverflowWhenReadAndRecoversWhenItsRowGoes) {
  InvoiceStore store;
  InvoiceStore::Row big = Invoice("big", "1");
  big.amount = Currency::Max();
  store.Put(store.TargetRowForAdd("t"), big);
  store.Put(store.TargetRowForAdd("t"), Invoice("one", "1"));
  EXPECT_EQ(test_support::ErrorNumberOf([&] { store.TotalAmount(); }), 6);
  store.Remove(1);
  EXPECT_EQ(store.TotalAmount(), Currency::Max());
}

}  // namespace
}  // namespace zenta
