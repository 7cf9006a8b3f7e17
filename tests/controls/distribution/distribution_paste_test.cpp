#include <gtest/gtest.h>

#include "tests/controls/distribution/distribution_screen.h"
#include "zenta/platform/keys.h"

namespace zenta::testing {
namespace {

using platform::MessageResult;

class DistributionPasteTest : public ::testing::Test, public DistributionScreen {
 protected:
  void Paste(const std::string& text) {
    host.SetClipboardText(text);
    user.PressKey('V', platform::kCtrl);
  }
};

TEST_F(DistributionPasteTest, PastedLinesAreValuesCheckedAgainstTheAmountAndUndoneAsOneStep) {
  auto table = Prepare("1300.00", {});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.ClickCell(Grid(), 0, 1);
    Paste("5100 office\t1250\r\n" + std::string(31, '9') + "\t1\r\n5200\tabc\r\n5300\t\"$40.00\"\r\n");
    // The lines read as values; what is left of the amount goes on a line of its own.
    EXPECT_EQ(Shown(0, 1), "5100 OFFICE");
    EXPECT_EQ(Shown(0, 2), "1250.00");
    EXPECT_EQ(Shown(1, 2), "40.00");
    EXPECT_EQ(Shown(2, 2), "10.00");
    EXPECT_EQ(Engine().Column(2).footer_text, "1300.00");
    user.PressKey('Z', platform::kCtrl);
    EXPECT_EQ(Dialog().DistributionCount(), 0);
    user.PressKey('Y', platform::kCtrl);
    EXPECT_EQ(Shown(1, 1), "5300");
    user.Click(Cancel());
  });
  ASSERT_EQ(host.MessagesShown().size(), 1u);
  EXPECT_EQ(host.MessagesShown()[0].text,
            "These lines were not pasted:\n"
            "Line 2: The General Ledger Account Number must not be more than 30 characters in length.\n"
            "Line 3: not an amount");
}

TEST_F(DistributionPasteTest, AStoredLineIsUndoneToWhatItWas) {
  auto table = Prepare("100.00", {{"5100", "100.00"}});
  Show([&] {
    user.ClickCell(Grid(), 0, 2);
    user.Type("6000\t");
    EXPECT_EQ(Shown(1, 2), "40.00");
    user.ClickCell(Grid(), 0, 2);
    user.PressKey('Z', platform::kCtrl);
    EXPECT_EQ(Shown(0, 2), "100.00");
    EXPECT_EQ(Engine().DisplayRowCount(), 2);  // the line and the add-new row
    user.Click(Cancel());
  });
}

}  // namespace
}  // namespace zenta::testing
