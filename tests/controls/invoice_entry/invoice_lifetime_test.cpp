#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/controls/closable_control_screen.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"

namespace zenta::testing {
namespace {

Currency Money(const char* text) { return Currency::FromText(text); }
Date Day(int y, int m, int d) { return *Date::FromYmd(y, m, d); }

// A host's form whose invoice list the host may close at any moment.
struct InvoiceLifetimeTest : ClosableControlScreen<InvoiceEntry> {
  InvoiceLifetimeTest() : ClosableControlScreen("InvoiceEntry1") {}
  void SetUp() override {
    host.SetToday(Day(2026, 3, 1));
    control->InitProperties();
    ShowForm();
  }
  // A payer types one invoice and tabs past its amount into the window.
  void TypeInvoice() {
    user.ClickCell(control->grInvoices(), 0, InvoiceStore::kDateColumn);
    user.Type("20260201\tINV-1\t1250\t");
  }
};

TEST_F(InvoiceLifetimeTest, ClosedWhileItsWindowIsOpenTheWindowClosesAsCancelled) {
  control->AddInvoice(Day(2026, 2, 1), "INV-1", Money("100"));
  control->SetCurrentRow(1);
  CloseWhileTheWindowIsOpen();
}

struct ClosingEvent {
  const char* name;
  std::function<void(InvoiceLifetimeTest&)> provoke;
};

class InvoiceClosedFromHandler : public InvoiceLifetimeTest, public ::testing::WithParamInterface<ClosingEvent> {};

TEST_P(InvoiceClosedFromHandler, NothingOfTheControlIsTouchedAfterwards) {
  CloseOn(GetParam().name);
  GetParam().provoke(*this);
  form.Settle();
  EXPECT_EQ(control, nullptr) << GetParam().name << " was not raised";
  KeepTyping();
}

INSTANTIATE_TEST_SUITE_P(
    EveryEvent, InvoiceClosedFromHandler,
    ::testing::Values(
        ClosingEvent{"CheckDuplicateInvoices", [](InvoiceLifetimeTest& screen) { screen.TypeInvoice(); }},
        ClosingEvent{"ValidateInvoiceAmountLimit", [](InvoiceLifetimeTest& screen) { screen.TypeInvoice(); }},
        ClosingEvent{"Recalculate",
                     [](InvoiceLifetimeTest& screen) {
                       screen.AcceptTheProposedSplit();
                       screen.TypeInvoice();
                     }},
        ClosingEvent{"FirstDistributionEntered",
                     [](InvoiceLifetimeTest& screen) {
                       screen.AcceptTheProposedSplit();
                       screen.TypeInvoice();
                     }},
        ClosingEvent{"DistributionEntered",
                     [](InvoiceLifetimeTest& screen) {
                       screen.control->AddInvoice(Day(2026, 2, 1), "INV-1", Money("100"));
                       screen.control->SetCurrentRow(1);
                       screen.AcceptTheProposedSplit();
                       screen.control->ShowDistribution();
                       screen.AcceptTheProposedSplit();
                       screen.control->ShowDistribution();
                     }}),
    [](const ::testing::TestParamInfo<ClosingEvent>& event) { return std::string(event.param.name); });

TEST_F(InvoiceLifetimeTest, ClearingTheListWhileTheWindowIsOpenAttachesTheLinesToNoRow) {
  control->AddInvoice(Day(2026, 2, 1), "INV-1", Money("100"));
  control->SetCurrentRow(1);
  form.ExpectDialog([&](headless::Dialog&) {
    control->Clear();
    control->AddInvoice(Day(2026, 2, 2), "INV-2", Money("40"));
    EXPECT_FALSE(Dialog().IsShown());
    ClickInWindow("cmdGLAccept");
  });
  control->ShowDistribution();
  form.Settle();
  ASSERT_EQ(control->RowCount(), 1);
  EXPECT_EQ(control->InvoiceValues(1)->InvoiceNo, "INV-2");
  EXPECT_EQ(control->InvoiceValues(1)->Distributions->Count(), 0);
}

TEST_F(InvoiceLifetimeTest, ARowDeletedWhileTheWindowIsOpenTakesNoLines) {
  control->AddInvoice(Day(2026, 2, 1), "INV-1", Money("100"));
  control->AddInvoice(Day(2026, 2, 2), "INV-2", Money("100"));
  control->SetEmailFilename(1, "a.pdf");
  control->SetCurrentRow(1);
  form.ExpectDialog([&](headless::Dialog&) {
    control->DeleteByEmailFilename("a.pdf");
    ClickInWindow("cmdGLAccept");
  });
  control->ShowDistribution();
  form.Settle();
  ASSERT_EQ(control->RowCount(), 1);
  EXPECT_EQ(control->InvoiceValues(1)->InvoiceNo, "INV-2");
  EXPECT_EQ(control->InvoiceValues(1)->Distributions->Count(), 0);
}

}  // namespace
}  // namespace zenta::testing
