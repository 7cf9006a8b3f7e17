#include <gtest/gtest.h>

#include <limits>

#include "zenta/core/host_error.h"
#include "zenta/platform/headless/date_edit_widget.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

class DateEditLeaving : public ::testing::TestWithParam<const char*> {
 protected:
  Form form;
  Surface& surface = form.AddSurface("control");
  User user{form};
  DateEditWidget& date = static_cast<DateEditWidget&>(surface.AddDateEdit({"dtDueDate"}));
  platform::TextBox& other = surface.AddTextBox({"other"});
};

TEST_P(DateEditLeaving, PartialOrImpossibleDatePutsBackTheLastDate) {
  date.SetValue(*Date::Parse("2025/01/31"));
  user.Click(date);
  user.Type(GetParam());
  user.Click(other);
  EXPECT_EQ(date.Text(), "2025/01/31");
  EXPECT_EQ(date.Value()->ToText(), "2025/01/31");
  EXPECT_TRUE(date.Refused());
  user.Click(date);
  user.Type("20260101");
  EXPECT_FALSE(date.Refused());
}

TEST_P(DateEditLeaving, PartialOrImpossibleDateInAnEmptyFieldLeavesItEmpty) {
  user.Click(date);
  user.Type(GetParam());
  user.Click(other);
  EXPECT_EQ(date.Text(), "____/__/__");
  EXPECT_FALSE(date.Value().has_value());
  EXPECT_TRUE(date.Refused());
}

INSTANTIATE_TEST_SUITE_P(Typed, DateEditLeaving, ::testing::Values("20261399", "2026", "20260230", "00990101"));

TEST(DateEdit, ATypedDateBecomesTheOneToPutBack) {
  Form form;
  Surface& surface = form.AddSurface("control");
  User user{form};
  auto& date = static_cast<DateEditWidget&>(surface.AddDateEdit({"date"}));
  auto& other = surface.AddTextBox({"other"});
  user.Click(date);
  user.Type("20260315");
  user.Click(other);
  user.Click(date);
  user.Type("2027");
  user.Click(other);
  EXPECT_EQ(date.Text(), "2026/03/15");
}

TEST(DateEdit, HostDateOutsideYears100To9999IsRefusedAndChangesNothing) {
  Form form;
  Surface& surface = form.AddSurface("control");
  auto& date = surface.AddDateEdit({"dtInvoiceDate"});
  date.SetValue(*Date::Parse("2025/01/31"));
  for (std::int32_t day : {std::numeric_limits<std::int32_t>::min(), -657435, 2958466,
                           std::numeric_limits<std::int32_t>::max()}) {
    try {
      date.SetValue(Date::FromDayNumber(day));
      ADD_FAILURE() << day;
    } catch (const HostError& error) {
      EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x80040015u);
      EXPECT_EQ(error.Source(), "dtInvoiceDate");
      EXPECT_EQ(error.Description(), "Dates must range from 0100/01/01 to 9999/12/31");
    }
    EXPECT_EQ(date.Text(), "2025/01/31") << day;
  }
  date.SetValue(Date::FromDayNumber(-657434));
  EXPECT_EQ(date.Text(), "0100/01/01");
  date.SetValue(Date::FromDayNumber(2958465));
  EXPECT_EQ(date.Text(), "9999/12/31");
}

}  // namespace
}  // namespace zenta::headless
