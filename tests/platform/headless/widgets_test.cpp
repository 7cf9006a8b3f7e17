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

struct EditFormatCase {
  const char* format;
  const char* typed;
  const char* text;
};

class NumberEditTyping : public Widgets, public ::testing::WithParamInterface<EditFormatCase> {};

TEST_P(NumberEditTyping, KeepsOnlyWhatTheEditFormatAllows) {
  auto& edit = surface.AddNumberEdit({"amount"});
  edit.SetEditFormat(GetParam().format);
  user.Click(edit);
  user.Type(GetParam().typed);
  EXPECT_EQ(edit.Text(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, NumberEditTyping,
    ::testing::Values(EditFormatCase{"#########.##", "12345678901", "123456789"},
                      EditFormatCase{"#########.##", "123456789.123", "123456789.12"},
                      EditFormatCase{"#########.##", "1-2..3a", "12.3"},
                      EditFormatCase{"#########.##", "-7", "-7"},
                      EditFormatCase{"#########.##", "--7", "-7"},
                      EditFormatCase{"#########.##", "1,5é€", "15"},
                      EditFormatCase{"#####", "12.3456789", "12345"},
                      EditFormatCase{"###,###.#", "12345678.99", "123456.9"}));

TEST_F(Widgets, NumberEditReadsItsValueFromTheText) {
  auto& edit = surface.AddNumberEdit({"amount"});
  user.Click(edit);
  user.Type("-");
  EXPECT_TRUE(edit.IsNull());
  user.Type("7.5");
  EXPECT_EQ(edit.Value(), Currency::FromText("-7.5"));
  user.PressBackspace();
  user.PressBackspace();
  EXPECT_EQ(edit.Value(), Currency::FromInteger(-7));
  edit.SetValue(Currency::FromText("1234.5"));
  EXPECT_EQ(edit.Text(), "1234.5");
  edit.SetText("99999999999999999999");  // too large to hold: no value rather than a wrap
  EXPECT_TRUE(edit.IsNull());
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
  user.Type("4");
  EXPECT_EQ(edit.Text(), "34");  // only the first key replaces
  user.PressKey(platform::keys::kF2);
  EXPECT_TRUE(edit.IsNull());
  user.Click(other);
  EXPECT_EQ(edit.DisplayText(), "0.00");  // the null section
  edit.SetValue(Currency::FromInteger(1250));
  user.Click(edit);
  user.PressBackspace();  // on the selection: everything goes
  EXPECT_TRUE(edit.IsNull());
  EXPECT_EQ(edit.DisplayText(), "");
}

TEST_F(Widgets, DateEditFillsItsMaskAndCanBeEmpty) {
  auto& date = surface.AddDateEdit({"date"});
  form.SetToday(*Date::Parse("2026/11/22"));
  user.Click(date);
  user.Type("2026/11");
  EXPECT_EQ(date.Text(), "2026/11/__");
  EXPECT_FALSE(date.Value().has_value());
  user.Type("31");
  EXPECT_EQ(date.Text(), "2026/11/31");
  EXPECT_FALSE(date.Value().has_value());  // no 31 November
  user.PressBackspace();
  user.Type("0");
  EXPECT_EQ(date.Value()->ToText(), "2026/11/30");
  user.Type("5");  // the mask is full
  EXPECT_EQ(date.Text(), "2026/11/30");
  user.PressKey(platform::keys::kF2);
  EXPECT_EQ(date.Text(), "____/__/__");
  EXPECT_FALSE(date.Value().has_value());
  user.PressKey(platform::keys::kF3);
  EXPECT_EQ(date.Value()->ToText(), "2026/11/22");
}

TEST_F(Widgets, DateEditTypingAfterTheFocusArrivesStartsANewDate) {
  auto& date = surface.AddDateEdit({"date"});
  auto& other = surface.AddTextBox({"other"});
  date.SetValue(*Date::Parse("2025/01/31"));
  user.Click(date);
  user.Type("2026");
  EXPECT_EQ(date.Text(), "2026/__/__");
  user.Click(other);
  user.Click(date);
  user.PressBackspace();
  EXPECT_EQ(date.Text(), "____/__/__");
}

TEST_F(Widgets, TextBoxFiltersMayReplaceOrDiscardCharacters) {
  auto& box = surface.AddTextBox({"text"});
  std::vector<char32_t> seen;
  box.OnKeyPress([&](platform::KeyPress& press) {
    seen.push_back(press.key);
    if (press.key == U'"') press.key = 0;
    if (press.key == U'a') press.key = U'A';
  });
  user.Click(box);
  user.Type("a\"bé");
  EXPECT_EQ(box.Text(), "Abé");
  user.PressBackspace();
  EXPECT_EQ(box.Text(), "Ab");
  user.PressEnter();
  EXPECT_EQ(box.Text(), "Ab");  // a single line takes no Enter
  EXPECT_EQ(seen, (std::vector<char32_t>{U'a', U'"', U'b', U'é', 8, 13}));
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
  user.Type(" ");
  EXPECT_EQ(box.State(), 1);
  box.SetEnabled(false);
  user.Click(box);
  EXPECT_EQ(box.State(), 1);  // a disabled box ignores clicks
  EXPECT_EQ(clicks, 3);
}

TEST_F(Widgets, HiddenOrDisabledFieldsAndLabelsTakeNoFocus) {
  auto& label = surface.AddLabel({"label"}, "Amount");
  auto& hidden = surface.AddNumberEdit({"hidden"});
  auto& disabled = surface.AddTextBox({"disabled"});
  hidden.SetVisible(false);
  disabled.SetEnabled(false);
  for (platform::Widget* widget : std::vector<platform::Widget*>{&label, &hidden, &disabled}) {
    widget->SetFocus();
    user.Click(*widget);
    EXPECT_EQ(form.Focused(), nullptr) << widget->Name();
  }
}

}  // namespace
}  // namespace zenta::headless
