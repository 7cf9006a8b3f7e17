#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::testing {
namespace {

Currency Money(const char* text) { return Currency::FromText(text); }
Date Day(int y, int m, int d) { return *Date::FromYmd(y, m, d); }

// A host's form whose invoice list the host may close at any moment.
struct InvoiceLifetimeTest : ::testing::Test {
  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  headless::Surface& surface = form.AddSurface("InvoiceEntry1");
  std::unique_ptr<InvoiceEntry> control = std::make_unique<InvoiceEntry>(surface, host, context);

  void SetUp() override {
    host.SetToday(Day(2026, 3, 1));
    control->InitProperties();
    form.AddHostField("txtNext");
    form.Show();
  }
  FrmDistribution& Window() { return context.Distribution(); }
  headless::Dialog& Dialog() { return dynamic_cast<headless::Dialog&>(Window().Surface()); }
  void AcceptTheProposedSplit() {
    form.ExpectDialog([this](headless::Dialog&) { user.Click(Dialog().Get<headless::ButtonWidget>("cmdGLAccept")); });
  }
  void CloseOn(const std::string& name) {
    host.OnEvent([this, name](platform::RaisedEvent& event) {
      if (event.name == name) control.reset();
    });
  }
  // A payer types one invoice and tabs past its amount into the window.
  void TypeInvoice() {
    user.ClickCell(control->grInvoices(), 0, InvoiceStore::kDateColumn);
    user.Type("20260201\tINV-1\t1250\t");
  }
  void KeepTyping() {
    user.Type("12\t");
    user.PressEnter();
    user.PressTab();
  }
};

TEST_F(InvoiceLifetimeTest, ClosedWhileItsWindowIsOpenTheWindowClosesAsCancelled) {
  control->AddInvoice(Day(2026, 2, 1), "INV-1", Money("100"));
  control->SetCurrentRow(1);
  form.ExpectDialog([&](headless::Dialog&) {
    user.Type("5100\t");
    control.reset();
    EXPECT_FALSE(Dialog().IsShown());
  });
  control->ShowDistribution();
  EXPECT_EQ(control, nullptr);
  EXPECT_FALSE(Window().Chosen());
  KeepTyping();
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
    user.Click(Dialog().Get<headless::ButtonWidget>("cmdGLAccept"));
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
    user.Click(Dialog().Get<headless::ButtonWidget>("cmdGLAccept"));
  });
  control->ShowDistribution();
  form.Settle();
  ASSERT_EQ(control->RowCount(), 1);
  EXPECT_EQ(control->InvoiceValues(1)->InvoiceNo, "INV-2");
  EXPECT_EQ(control->InvoiceValues(1)->Distributions->Count(), 0);
}

}  // namespace
}  // namespace zenta::testing
