#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
  user.Click(first);
  user.PressTab();
  user.PressTab();
  EXPECT_THAT(log, ElementsAre("first lost, active second", "second gained"));
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
  user.Click(caption);
  EXPECT_EQ(form.Focused(), &first);
}

TEST_F(FocusAndKeys, PreviewSeesKeysFirstAndCanDiscardThem) {
  surface.OnKeyDown([&](platform::KeyDown& key) {
    log.push_back("preview " + std::to_string(key.key_code));
    if (key.key_code == '7') key.key_code = 0;
  });
  user.Click(first);
  user.Type("17");
  EXPECT_EQ(first.Text(), "1");
  EXPECT_THAT(log, ElementsAre("preview 49", "preview 55"));
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
}

TEST_F(FocusAndKeys, AFocusLostHandlerMayMoveTheFocusOn) {
  first.OnFocusLost([&] { first.SetFocus(); });
  second.OnFocusGained([&] { log.push_back("second gained"); });
  user.Click(first);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &first);
  EXPECT_TRUE(log.empty());
}

TEST_F(FocusAndKeys, ADisabledSurfaceTakesNoFocus) {
  surface.SetEnabled(false);
  user.Click(first);
  EXPECT_EQ(form.Focused(), nullptr);
}

}  // namespace
}  // namespace zenta::headless
