#include "zenta/platform/headless/dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

using ::testing::ElementsAre;

// A control with a field that opens a dialog of an account box, a grid and Accept/Cancel.
class DialogTest : public ::testing::Test {
 protected:
  DialogTest() {
    account.OnKeyPress([](platform::KeyPress&) {});
    accept.OnClick([&] {
      log.push_back("accept " + account.Text());
      dialog->Hide();
    });
    cancel.OnClick([&] {
      log.push_back("cancel");
      dialog->Hide();
    });
    dialog->SetCancelButton(cancel);
    dialog->OnActivate([&] { log.push_back("activate, focus on " + dialog->ActiveChild()->Name()); });
  }

  Form form;
  Surface& surface = form.AddSurface("control");
  platform::TextBox& field = surface.AddTextBox({"field"});
  platform::TextBox& next = surface.AddTextBox({"next"});
  Host host{form};
  User user{form};
  std::unique_ptr<Dialog> dialog = form.CreateDialog("frmTest");
  platform::Label& caption = dialog->AddLabel({"lblAccount"}, "Account");
  platform::TextBox& account = dialog->AddTextBox({"txtAccount"});
  platform::Grid& grid = dialog->AddGrid({"grLines"}, 2);
  platform::Button& accept = dialog->AddButton({"cmdAccept"}, "&Accept");
  platform::Button& cancel = dialog->AddButton({"cmdCancel"}, "Cancel");
  std::vector<std::string> log;
};

TEST_F(DialogTest, ShowModalActivatesThenPlaysTheScriptAndReturnsWhenHidden) {
  user.Click(field);
  form.ExpectDialog([&](Dialog& shown) {
    EXPECT_EQ(&shown, dialog.get());
    EXPECT_TRUE(shown.IsShown());
    user.Type("4000");
    user.Click(shown.Get<ButtonWidget>("cmdAccept"));
  });
  dialog->ShowModal();
  EXPECT_THAT(log, ElementsAre("activate, focus on txtAccount", "accept 4000"));
  EXPECT_FALSE(dialog->IsShown());
  EXPECT_EQ(form.Focused(), &field);
}

TEST_F(DialogTest, FocusAndTabStayInsideTheShownDialog) {
  form.ExpectDialog([&](Dialog& shown) {
    user.Click(next);  // outside: ignored
    EXPECT_EQ(form.Focused(), &account);
    user.PressTab();
    EXPECT_EQ(form.Focused(), &grid);
    user.PressTab();
    user.PressTab();
    user.PressTab();
    EXPECT_EQ(form.Focused(), &account);  // wraps within the dialog
    EXPECT_EQ(shown.ActiveChild(), &account);
    shown.Hide();
  });
  dialog->ShowModal();
  EXPECT_FALSE(form.CanFocus(&account));  // a hidden dialog's widgets take no focus
}

struct KeyCase {
  const char* name;
  int key_code;
  int shift;
  const char* logged;
};

class DialogKeys : public DialogTest, public ::testing::WithParamInterface<KeyCase> {};

TEST_P(DialogKeys, ClickTheirButton) {
  const KeyCase& c = GetParam();
  form.ExpectDialog([&](Dialog&) { user.PressKey(c.key_code, c.shift); });
  dialog->ShowModal();
  EXPECT_EQ(log.back(), c.logged) << c.name;
}

INSTANTIATE_TEST_SUITE_P(Cases, DialogKeys,
                         ::testing::Values(KeyCase{"escape", platform::keys::kEscape, platform::kNoShift, "cancel"},
                                           KeyCase{"alt+a", 'A', platform::kAlt, "accept "}));

TEST_F(DialogTest, SpaceAndEnterClickTheFocusedButton) {
  form.ExpectDialog([&](Dialog&) {
    user.Click(cancel);
  });
  form.ExpectDialog([&](Dialog&) {
    accept.SetFocus();
    user.Type(" ");
  });
  dialog->ShowModal();
  dialog->ShowModal();
  EXPECT_THAT(log, ElementsAre("activate, focus on txtAccount", "cancel", "activate, focus on txtAccount", "accept "));
}

TEST_F(DialogTest, AnUnexpectedDialogOrAScriptThatLeavesItOpenFailsInsteadOfHanging) {
  user.Click(field);
  EXPECT_THROW(dialog->ShowModal(), UnexpectedDialog);
  EXPECT_FALSE(dialog->IsShown());
  form.ExpectDialog([](Dialog&) {});
  EXPECT_THROW(dialog->ShowModal(), std::logic_error);
  EXPECT_FALSE(dialog->IsShown());
  EXPECT_EQ(form.Focused(), &field);
}

TEST_F(DialogTest, TheFieldThatHadTheFocusIsNotToldOfTheDialog) {
  auto& amount = surface.AddNumberEdit({"amount"});
  std::vector<std::string> amount_log;
  amount.OnFocusGained([&] { amount_log.push_back("gained"); });
  amount.OnFocusLost([&] { amount_log.push_back("lost"); });
  user.Click(amount);
  form.ExpectDialog([&](Dialog& shown) { shown.Hide(); });
  dialog->ShowModal();
  EXPECT_EQ(form.Focused(), &amount);
  user.PressShiftTab();
  EXPECT_EQ(form.Focused(), &next);
  EXPECT_THAT(amount_log, ElementsAre("gained", "lost"));
}

TEST_F(DialogTest, MessageBoxesAndPostsWorkWhileTheDialogIsUp) {
  host.ExpectMessage(platform::MessageResult::Ok);
  grid.Engine().Handlers().posted = [&](int) {
    platform::MessageBox box;
    box.text = "An amount is required.";
    host.ShowMessage(box);
  };
  form.ExpectDialog([&](Dialog& shown) {
    grid.Engine().PostMessage(10);
    user.Click(accept);
    EXPECT_EQ(host.MessagesShown().size(), 1u);
    EXPECT_FALSE(shown.IsShown());
  });
  dialog->ShowModal();
}

}  // namespace
}  // namespace zenta::headless
