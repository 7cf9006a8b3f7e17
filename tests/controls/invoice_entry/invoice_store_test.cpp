#include "zenta/controls/invoice_entry/invoice_store.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace zenta
