#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

class Widgets : public ::testing::Test {
 protected:
  Form form;
  Surface& surface = form.AddSurface("control");
  User user{form};
};

TEST_F(Widgets, NumberEditTypingObeysTheEditFormat) {
  auto& edit = surface.AddNumberEdit({"amount"});
  edit.SetEditFormat("#########.##");
  user.Click(edit);
  user.Type("12345678901");
  EXPECT_EQ(edit.Text(), "123456789");
  user.Type(".123");
  EXPECT_EQ(edit.Text(), "123456789.12");
  edit.SetText("");
  user.Type("1-2..3a");
  EXPECT_EQ(edit.Text(), "12.3");
  edit.SetText("");
  user.Type("-7");
  EXPECT_EQ(edit.Value(), Currency::FromInteger(-7));
}

TEST_F(Widgets, NumberEditSelectsAllOnFocusAndShowsItsDisplayFormatAway) {
  auto& edit = surface.AddNumberEdit({"amount"});
  auto& other = surface.AddNumberEdit({"other"});
  edit.SetDisplayFormat("########0.00;-########0.00;;0.00");
  edit.SetValue(Currency::FromText("25"));
  EXPECT_EQ(edit.DisplayText(), "25.00");
  user.Click(edit);
  EXPECT_EQ(edit.DisplayText(), "25");
  user.Type("3");
  EXPECT_EQ(edit.Text(), "3");
  user.PressKey(platform::keys::kF2);
  EXPECT_TRUE(edit.IsNull());
  user.Click(other);
  EXPECT_EQ(edit.DisplayText(), "0.00");  // the null section
}

TEST_F(Widgets, DateEditFillsItsMaskAndCanBeEmpty) {
  auto& date = surface.AddDateEdit({"date"});
  form.SetToday(*Date::Parse("2026/11/22"));
  user.Click(date);
  user.Type("2026/11");
  EXPECT_EQ(date.Text(), "2026/11/__");
  EXPECT_FALSE(date.Value().has_value());
  user.Type("31");
  EXPECT_FALSE(date.Value().has_value());  // no 31 November
  user.PressBackspace();
  user.Type("0");
  EXPECT_EQ(date.Value()->ToText(), "2026/11/30");
  user.PressKey(platform::keys::kF2);
  EXPECT_EQ(date.Text(), "____/__/__");
  user.PressKey(platform::keys::kF3);
  EXPECT_EQ(date.Value()->ToText(), "2026/11/22");
}

TEST_F(Widgets, TextBoxFiltersMayReplaceOrDiscardCharacters) {
  auto& box = surface.AddTextBox({"text"});
  box.OnKeyPress([](platform::KeyPress& press) {
    if (press.key == U'"') press.key = 0;
    if (press.key == U'a') press.key = U'A';
  });
  user.Click(box);
  user.Type("a\"bé");
  EXPECT_EQ(box.Text(), "Abé");
  user.PressBackspace();
  EXPECT_EQ(box.Text(), "Ab");
}

TEST_F(Widgets, CheckBoxClicksAndProgramChangesBothNotify) {
  auto& box = surface.AddCheckBox({"check"}, "Statement of Account only");
  int clicks = 0;
  box.OnClick([&] { ++clicks; });
  user.Click(box);
  EXPECT_EQ(box.State(), 1);
  box.SetState(1);
  box.SetState(0);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace zenta::headless
