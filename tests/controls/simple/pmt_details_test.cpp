#include "zenta/controls/simple/pmt_details.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen.h"

namespace zenta {
namespace {

using ::testing::ElementsAre;

class PmtDetailsTest : public ::testing::Test {
 protected:
  testing::Screen<PmtDetails> screen;
  PmtDetails& control = screen.control;
  headless::User& user = screen.user;
  headless::Host& host = screen.host;
};

TEST_F(PmtDetailsTest, APayerTypesOneInvoiceWithTheKeyboardOnly) {
  control.SetBusinessMode(true);
  user.Click(screen.Get<platform::DateEdit>("dtInvoiceDate"));
  user.Type("20261105\rabc-12\r9999\r");
  EXPECT_EQ(control.InvoiceDate().ToText(), "2026/11/05");
  EXPECT_EQ(control.InvoiceNumber(), "ABC-12");
  EXPECT_FLOAT_EQ(control.InvoiceAmount(), 99.99f);
  EXPECT_EQ(screen.Number("txtInvoiceAmount").DisplayText(), "99.99");
  EXPECT_EQ(screen.FocusedName(), "txtGSTAmount");
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusInvoiceAmount"));

  user.Type("\r");  // empty GST/HST, out of the control
  EXPECT_EQ(screen.FocusedName(), "txtHostNext");
  EXPECT_FLOAT_EQ(control.GSTAmount(), 0.0f);
  EXPECT_FALSE(screen.Number("txtGSTAmount").IsNull());
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusInvoiceAmount", "LostFocusAmount"));
}

TEST_F(PmtDetailsTest, OnlyTypedInvoiceNumbersAreUpperCased) {
  user.Click(screen.Get<platform::TextBox>("txtInvoiceNo"));
  user.Type("inv é-7");
  EXPECT_EQ(control.InvoiceNumber(), "INV é-7");
  control.SetInvoiceNumber("abc");
  EXPECT_EQ(control.InvoiceNumber(), "abc");
}

TEST_F(PmtDetailsTest, ClearEmptiesEverythingAndFocusesTheDate) {
  control.SetInvoiceDate(*Date::Parse("2026/01/02"));
  control.SetInvoiceNumber("X");
  control.SetInvoiceAmount(5);
  control.SetGSTAmount(1);
  control.Clear();
  EXPECT_TRUE(control.InvoiceDate().IsZero());
  EXPECT_EQ(control.InvoiceNumber(), "");
  EXPECT_EQ(control.InvoiceAmount(), 0.0f);
  EXPECT_EQ(control.GSTAmount(), 0.0f);
  EXPECT_TRUE(screen.Number("txtInvoiceAmount").IsNull());
  EXPECT_EQ(screen.FocusedName(), "dtInvoiceDate");
}

TEST_F(PmtDetailsTest, TitleColourReachesTheCalendarAtOnce) {
  auto& date = screen.Get<platform::DateEdit>("dtInvoiceDate");
  EXPECT_EQ(date.CalendarTitleColor(), colors::kTitleBlue);
  control.SetBackColorTitle(Rgb(10, 20, 30));
  EXPECT_EQ(date.CalendarTitleColor(), Rgb(10, 20, 30));
  EXPECT_TRUE(host.ChangedProperties().empty());
}

TEST_F(PmtDetailsTest, FocusMethodsSkipDisabledFields) {
  control.SetInvoiceAmountEnabled(false);
  control.SetFocusInvoiceAmount();
  EXPECT_EQ(screen.FocusedName(), "");
  control.SetFocusInvoiceNumber();
  EXPECT_EQ(screen.FocusedName(), "txtInvoiceNo");
  user.PressTab();  // the disabled amount is skipped
  EXPECT_EQ(screen.FocusedName(), "txtHostNext");
}

TEST_F(PmtDetailsTest, RoundTripsItsPropertiesAndSnapsToItsMinimum) {
  control.SetBusinessMode(true);
  control.SetBackColorTitle(Rgb(9, 9, 9));
  headless::MemoryPropertyBag bag;
  control.WriteProperties(bag);
  EXPECT_THAT(bag.Values(), ::testing::SizeIs(2));
  testing::Screen<PmtDetails> reloaded;
  reloaded.control.ReadProperties(bag);
  EXPECT_TRUE(reloaded.Number("txtGSTAmount").Visible());
  EXPECT_EQ(reloaded.Get<platform::DateEdit>("dtInvoiceDate").CalendarTitleColor(), Rgb(9, 9, 9));
  reloaded.surface.SetSize(100, 100);
  EXPECT_EQ(reloaded.surface.Width(), 1815);
  EXPECT_EQ(reloaded.surface.Height(), 2500);
}

}  // namespace
}  // namespace zenta
