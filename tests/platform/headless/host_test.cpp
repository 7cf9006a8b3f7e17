#include "zenta/platform/headless/host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::headless {
namespace {

using platform::MessageBox;
using platform::MessageButtons;
using platform::MessageIcon;
using platform::MessageResult;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class HostTest : public ::testing::Test {
 protected:
  Form form;
  Host host{form};
};

TEST_F(HostTest, AnswersMessageBoxesInOrderAndRecordsThem) {
  host.ExpectMessage(MessageResult::No);
  host.ExpectMessage(MessageResult::Yes);
  MessageBox question{"Delete?", "Delete this invoice?", MessageButtons::YesNo, MessageIcon::Question};
  MessageBox warning{"Too old", "Invoice date", MessageButtons::Ok, MessageIcon::Exclamation};
  EXPECT_EQ(host.ShowMessage(question), MessageResult::No);
  EXPECT_EQ(host.ShowMessage(warning), MessageResult::Yes);
  EXPECT_THAT(host.MessagesShown(), ElementsAre(question, warning));
  EXPECT_EQ(host.PendingAnswers(), 0u);
}

TEST_F(HostTest, AnUnexpectedMessageBoxFailsInsteadOfHanging) {
  try {
    host.ShowMessage({"An amount is required.", "Cannot accept distribution."});
    FAIL();
  } catch (const UnexpectedMessageBox& error) {
    EXPECT_THAT(error.what(), AllOf(HasSubstr("An amount is required."), HasSubstr("Cannot accept distribution.")));
  }
  EXPECT_EQ(host.MessagesShown().size(), 1u);
}

TEST_F(HostTest, TheHostMayChangeInOutArguments) {
  host.OnEvent([](platform::RaisedEvent& event) {
    if (event.name == "Veto") event.args[1] = Variant(true);
  });
  platform::RaisedEvent event{5, "Veto", {Variant("INV-1"), Variant(false)}};
  host.RaiseEvent(event);
  EXPECT_EQ(event.args[1], Variant(true));
  EXPECT_EQ(host.Events().at(0).args[1], Variant(true));  // recorded as the host left it
  EXPECT_EQ(host.Events().at(0).number, 5);
  platform::RaisedEvent other{1, "LostFocusAmount", {}};
  host.RaiseEvent(other);
  EXPECT_THAT(host.EventNames(), ElementsAre("Veto", "LostFocusAmount"));
}

TEST_F(HostTest, EveryHostOnAFormSharesItsToday) {
  Host second(form);
  host.SetToday(*Date::Parse("2026/02/28"));
  EXPECT_EQ(second.Today().ToText(), "2026/02/28");
  EXPECT_EQ(form.Today().ToText(), "2026/02/28");
}

TEST(MemoryPropertyBag, StoresOnlyWhatDiffersFromTheDefault) {
  MemoryPropertyBag bag;
  bag.Write("BackColor", Variant(5), Variant(5));
  EXPECT_FALSE(bag.Contains("BackColor"));
  bag.Write("BackColor", Variant(6), Variant(5));
  EXPECT_EQ(bag.Read("BackColor", Variant(5)), Variant(6));
  bag.Write("BackColor", Variant(5), Variant(5));
  EXPECT_FALSE(bag.Contains("BackColor"));  // writing the default again removes the saved value
  EXPECT_EQ(bag.Read("Missing", Variant(true)), Variant(true));
  EXPECT_TRUE(bag.Values().empty());
}

}  // namespace
}  // namespace zenta::headless
