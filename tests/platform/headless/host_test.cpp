#include "zenta/platform/headless/host.h"

#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::headless {
namespace {

using platform::MessageBox;
using platform::MessageButtons;
using platform::MessageIcon;
using platform::MessageResult;

TEST(Host, AnswersMessageBoxesInOrderAndRecordsThem) {
  Form form;
  Host host(form);
  host.ExpectMessage(MessageResult::No);
  host.ExpectMessage(MessageResult::Yes);
  MessageBox question{"Delete?", "Delete this invoice?", MessageButtons::YesNo, MessageIcon::Question};
  EXPECT_EQ(host.ShowMessage(question), MessageResult::No);
  EXPECT_EQ(host.ShowMessage(question), MessageResult::Yes);
  ASSERT_EQ(host.MessagesShown().size(), 2u);
  EXPECT_EQ(host.MessagesShown()[0], question);
}

TEST(Host, AnUnexpectedMessageBoxFailsInsteadOfHanging) {
  Form form;
  Host host(form);
  try {
    host.ShowMessage({"An amount is required.", "Cannot accept distibution."});
    FAIL();
  } catch (const UnexpectedMessageBox& error) {
    EXPECT_NE(std::string(error.what()).find("An amount is required."), std::string::npos);
  }
  EXPECT_EQ(host.MessagesShown().size(), 1u);
}

TEST(Host, TheHostMayChangeInOutArguments) {
  Form form;
  Host host(form);
  host.OnEvent([](platform::RaisedEvent& event) {
    if (event.name == "Veto") event.args[1] = Variant(true);
  });
  platform::RaisedEvent event{5, "Veto", {Variant("INV-1"), Variant(false)}};
  host.RaiseEvent(event);
  EXPECT_EQ(event.args[1], Variant(true));
  EXPECT_EQ(host.Events().at(0).args[1], Variant(true));
  EXPECT_EQ(host.Events().at(0).number, 5);
}

TEST(Host, TodayIsSharedWithTheForm) {
  Form form;
  Host host(form);
  host.SetToday(*Date::Parse("2026/02/28"));
  EXPECT_EQ(form.Today().ToText(), "2026/02/28");
  EXPECT_THROW(host.InjectKeys("{F9}"), std::invalid_argument);
}

TEST(MemoryPropertyBag, StoresOnlyWhatDiffersFromTheDefault) {
  MemoryPropertyBag bag;
  bag.Write("BackColor", Variant(5), Variant(5));
  EXPECT_FALSE(bag.Contains("BackColor"));
  bag.Write("BackColor", Variant(6), Variant(5));
  EXPECT_EQ(bag.Read("BackColor", Variant(5)), Variant(6));
  bag.Write("BackColor", Variant(5), Variant(5));
  EXPECT_FALSE(bag.Contains("BackColor"));
  EXPECT_EQ(bag.Read("Missing", Variant(true)), Variant(true));
}

}  // namespace
}  // namespace zenta::headless
