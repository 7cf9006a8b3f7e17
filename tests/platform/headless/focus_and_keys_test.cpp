#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

using ::testing::ElementsAre;

class FocusAndKeys : public ::testing::Test {
 protected:
  Form form;
  Surface& surface = form.AddSurface("control");
  Host host{form};
  platform::NumberEdit& first = surface.AddNumberEdit({"first"});
  platform::Label& caption = surface.AddLabel({"caption"}, "Caption");
  platform::NumberEdit& second = surface.AddNumberEdit({"second"});
  TextBoxWidget& outside = form.AddHostField("outside");
  User user{form};
  std::vector<std::string> log;
};

TEST_F(FocusAndKeys, FocusLostRunsWhenTheNextFieldIsAlreadyActive) {
  first.OnFocusLost([&] { log.push_back("first lost, active " + surface.ActiveChildName()); });
  second.OnFocusGained([&] { log.push_back("second gained"); });
  second.OnFocusLost([&] { log.push_back("second lost, active '" + surface.ActiveChildName() + "'"); });
  user.Click(first);
  user.PressTab();
  user.PressTab();
  EXPECT_THAT(log, ElementsAre("first lost, active second", "second gained", "second lost, active ''"));
  EXPECT_EQ(surface.ActiveChild(), nullptr);
  EXPECT_EQ(form.Focused(), &outside);
}

TEST_F(FocusAndKeys, TabOrderSkipsLabelsAndDisabledFieldsAndWraps) {
  user.Click(second);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &outside);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &first);
  second.SetEnabled(false);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &outside);
  user.PressShiftTab();
  EXPECT_EQ(form.Focused(), &first);
  user.PressShiftTab();
  EXPECT_EQ(form.Focused(), &outside);  // Shift+Tab wraps backwards too
  user.Click(caption);
  EXPECT_EQ(form.Focused(), &outside);
}

TEST(TabOrder, GoesOnFromAClickedFieldWithoutATabStop) {
  Form form;
  Surface& surface = form.AddSurface("control");
  auto& first = surface.AddTextBox({"first"});
  auto& skipped = surface.AddTextBox({.name = "skipped", .tab_stop = false});
  auto& last = surface.AddTextBox({"last"});
  User user(form);
  user.Click(first);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &last);
  user.Click(skipped);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &last);
  user.Click(skipped);
  user.PressShiftTab();
  EXPECT_EQ(form.Focused(), &first);
}

TEST_F(FocusAndKeys, PreviewSeesKeysBeforeTheFocusedFieldAndCanDiscardThem) {
  auto& box = surface.AddTextBox({"box"});
  surface.OnKeyDown([&](platform::KeyDown& key) {
    log.push_back("preview " + std::to_string(key.key_code));
    if (key.key_code == '7') key.key_code = 0;
  });
  box.OnKeyPress([&](platform::KeyPress& press) { log.push_back("box " + std::string(1, static_cast<char>(press.key))); });
  user.Click(box);
  user.Type("17");
  EXPECT_EQ(box.Text(), "1");
  EXPECT_THAT(log, ElementsAre("preview 49", "box 1", "preview 55"));
}

TEST_F(FocusAndKeys, PunctuationArrivesWithItsOwnKeyCodeNotAsANavigationKey) {
  std::vector<platform::KeyDown> seen;
  surface.OnKeyDown([&](platform::KeyDown& key) { seen.push_back(key); });
  user.Click(first);
  user.Type("(.&-aA");
  ASSERT_EQ(seen.size(), 6u);
  EXPECT_NE(seen[0].key_code, platform::keys::kDown);
  EXPECT_EQ(seen[0].key_code, '9');
  EXPECT_EQ(seen[0].shift, platform::kShift);
  EXPECT_EQ(seen[1].key_code, 190);
  EXPECT_NE(seen[2].key_code, platform::keys::kUp);
  EXPECT_EQ(seen[3].key_code, 189);
  EXPECT_EQ(seen[4].key_code, 'A');
  EXPECT_EQ(seen[4].shift, platform::kNoShift);
  EXPECT_EQ(seen[5].shift, platform::kShift);
  EXPECT_EQ(first.Text(), ".");  // the edit format still sees the characters themselves
}

TEST_F(FocusAndKeys, InjectedTabRunsAfterTheHandlerReturns) {
  surface.OnKeyDown([&](platform::KeyDown& key) {
    if (key.key_code != platform::keys::kEnter) return;
    key.key_code = 0;
    host.InjectKeys("{TAB}");
    log.push_back("handler done, focus " + form.Focused()->Name());
  });
  first.OnFocusLost([&] { log.push_back("first lost"); });
  user.Click(first);
  user.PressEnter();
  EXPECT_THAT(log, ElementsAre("handler done, focus first", "first lost"));
  EXPECT_EQ(form.Focused(), &second);
  EXPECT_THAT(host.InjectedKeys(), ElementsAre("{TAB}"));
}

TEST_F(FocusAndKeys, KeysInjectedOutsideAnActionRunBeforeTheNextOne) {
  user.Click(first);
  host.InjectKeys("{TAB}");  // as a control method called by the host program might
  EXPECT_EQ(form.Focused(), &first);
  user.Type("5");
  EXPECT_EQ(second.Text(), "5");
  EXPECT_EQ(first.Text(), "");
}

TEST_F(FocusAndKeys, InjectedShiftTabAndEnterAreDeliveredAsKeys) {
  std::vector<std::string> keys;
  surface.OnKeyDown([&](platform::KeyDown& key) {
    keys.push_back(std::to_string(key.key_code) + "/" + std::to_string(key.shift));
    if (key.key_code == 'X') host.InjectKeys("+{TAB}{ENTER}");
  });
  user.Click(second);
  user.Type("x");
  EXPECT_THAT(keys, ElementsAre("88/0", "9/1", "13/0"));
  EXPECT_EQ(form.Focused(), &first);
}

TEST(InjectedKeys, AHandlerThatKeepsInjectingIsStopped) {
  Form form;
  Surface& surface = form.AddSurface("control");
  Host host(form);
  auto& field = surface.AddNumberEdit({"field"});
  surface.OnKeyDown([&](platform::KeyDown&) { host.InjectKeys("{TAB}"); });
  User user(form);
  user.Click(field);
  EXPECT_THROW(user.PressTab(), std::logic_error);
  surface.OnKeyDown([](platform::KeyDown&) {});
  user.Type("4");  // the toolkit is usable again afterwards
  EXPECT_EQ(field.Text(), "4");
}

TEST_F(FocusAndKeys, AFocusLostHandlerMayMoveTheFocusOn) {
  first.OnFocusLost([&] { first.SetFocus(); });
  second.OnFocusGained([&] { log.push_back("second gained"); });
  second.OnFocusLost([&] { log.push_back("second lost"); });
  user.Click(first);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &first);
  EXPECT_TRUE(log.empty());  // second never really had the focus
}

TEST_F(FocusAndKeys, AFocusGainedHandlerMaySendTheFocusBack) {
  first.OnFocusLost([&] { log.push_back("first lost"); });
  first.OnFocusGained([&] { log.push_back("first gained"); });
  second.OnFocusGained([&] {
    log.push_back("second gained");
    first.SetFocus();
  });
  second.OnFocusLost([&] { log.push_back("second lost"); });
  user.Focus(first);
  log.clear();
  user.PressTab();
  EXPECT_THAT(log, ElementsAre("first lost", "second gained", "second lost", "first gained"));
  EXPECT_EQ(form.Focused(), &first);
}

TEST_F(FocusAndKeys, ADisabledSurfaceTakesNoFocus) {
  surface.SetEnabled(false);
  user.Click(first);
  EXPECT_EQ(form.Focused(), nullptr);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &outside);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &outside);
}

}  // namespace
}  // namespace zenta::headless
