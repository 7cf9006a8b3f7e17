#include "zenta/controls/simple/govt_details.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen.h"
#include "zenta/core/host_error.h"
#include "zenta/core/utf8.h"

namespace zenta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GovtDetailsTest : public ::testing::Test {
 protected:
  testing::Screen<GovtDetails> screen;
  GovtDetails& control = screen.control;
  headless::User& user = screen.user;
  headless::Host& host = screen.host;
  platform::Grid& grid = screen.Get<platform::Grid>("grItems");
  platform::GridEngine& engine = grid.Engine();

  void StartOnRow(int row) { user.ClickCell(grid, row, 1); }
};

TEST_F(GovtDetailsTest, LoadsTwelveLetteredRows) {
  EXPECT_EQ(control.GridNumberofRows(), 12);
  EXPECT_EQ(engine.DisplayedText(1, 0), "A-01");
  EXPECT_EQ(engine.DisplayedText(12, 0), "L-12");
  EXPECT_EQ(engine.Column(0).caption, "Item");
  EXPECT_EQ(engine.Column(1).caption, "Amount");
  EXPECT_EQ(engine.Column(1).editor_tooltip, "Enter the amount of the payment");
}

TEST_F(GovtDetailsTest, SetRowsTakesOneToTwentySixAndRefusesTheRest) {
  control.SetRows(26);
  EXPECT_EQ(control.GridNumberofRows(), 26);
  EXPECT_EQ(engine.DisplayedText(9, 0), "I-09");
  EXPECT_EQ(engine.DisplayedText(10, 0), "J-10");
  EXPECT_EQ(engine.DisplayedText(26, 0), "Z-26");
  control.SetGridValues(3, "7.00");
  for (std::int16_t bad : {std::int16_t{0}, std::int16_t{27}, std::int16_t{-1}}) {
    try {
      control.SetRows(bad);
      FAIL() << bad;
    } catch (const HostError& error) {
      EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x80040014u);
      EXPECT_EQ(error.Source(), "GovtDetails");
      EXPECT_EQ(error.Description(), "Rows must range from 1 to 26");
    }
  }
  EXPECT_EQ(control.GridNumberofRows(), 26);
  EXPECT_EQ(control.GridValues(3), "7.00");
}

TEST_F(GovtDetailsTest, AnAmountTypedAsCentsIsStoredDividedAndReported) {
  StartOnRow(4);
  user.Type("4550");
  EXPECT_TRUE(engine.IsEditing());
  EXPECT_EQ(control.GridValues(4), "4550");  // as typed until the cell is left
  user.PressEnter();  // the grid keeps Enter: it ends the edit
  EXPECT_EQ(control.GridValues(4), "45.5");
  ASSERT_EQ(host.Events().size(), 1u);
  EXPECT_EQ(host.Events()[0].number, GovtDetails::kGridRowUpdated);
  EXPECT_EQ(host.Events()[0].args[0], Variant(std::int16_t{4}));
  EXPECT_EQ(screen.FocusedName(), "grItems");
}

struct RowListener : GovtDetails::Events {
  std::vector<std::int16_t> rows;
  void GridRowUpdated(std::int16_t Row) override { rows.push_back(Row); }
};

TEST_F(GovtDetailsTest, TypedListenersHearTheUpdatedRow) {
  RowListener listener;
  control.SetEventListener(&listener);
  StartOnRow(7);
  user.Type("12.5");
  user.PressTab();
  EXPECT_EQ(control.GridValues(7), "12.5");
  EXPECT_THAT(listener.rows, ElementsAre(7));
  EXPECT_THAT(host.EventNames(), ElementsAre("GridRowUpdated"));
}

TEST_F(GovtDetailsTest, ACellOfEighteenCharactersExactlyRefusesKeysButBackspace) {
  control.SetGridValues(5, "123456789012345678");
  control.SetGridValues(6, "1234567890123456789012");  // longer than 18 through the host
  StartOnRow(5);
  user.Type("7");
  EXPECT_FALSE(engine.IsEditing());
  EXPECT_EQ(control.GridValues(5), "123456789012345678");
  user.PressBackspace();  // the whole text was selected
  EXPECT_EQ(engine.CellText(1), "");
  StartOnRow(6);
  user.Type("7");
  EXPECT_EQ(engine.CellText(1), "7");
}

TEST_F(GovtDetailsTest, AmountCellsTakeWhatAnAmountCanHoldInUpperCase) {
  StartOnRow(2);
  user.Type("1-a!2.345");  // "-" only first, never letters or "!", two decimals
  EXPECT_EQ(engine.CellText(1), "12.34");
  user.PressBackspace();
  user.Type("9");
  EXPECT_EQ(engine.CellText(1), "12.39");
}

TEST_F(GovtDetailsTest, TheItemColumnIsPassedOverAndNeverWritten) {
  user.Click(screen.Get<platform::DateEdit>("dtDueDate"));
  user.PressTab();
  EXPECT_EQ(screen.FocusedName(), "grItems");
  EXPECT_EQ(engine.CurrentColumn(), 1);
  int tabs = 0;
  while (screen.FocusedName() == "grItems" && tabs < 30) {
    EXPECT_EQ(engine.CurrentColumn(), 1);
    user.Type("1\t");
    ++tabs;
  }
  EXPECT_EQ(tabs, 12);  // one per amount, the last one leaves
  EXPECT_EQ(screen.FocusedName(), "txtComments");
  EXPECT_EQ(control.GridValues(12), "0.01");

  user.ClickCell(grid, 3, 0);  // a click may stand on a label, but typing never replaces it
  user.Type("ZZ");
  user.PressKey(platform::keys::kF2);
  user.Type("9");
  EXPECT_FALSE(engine.IsEditing());
  EXPECT_EQ(engine.DisplayedText(3, 0), "C-03");
}

TEST_F(GovtDetailsTest, HostValuesGoToTheirRowOnlyAndKeepTheCurrentRow) {
  StartOnRow(2);
  control.SetGridValues(2, "10.00");
  control.SetGridValues(5, "abc 1,5");  // stored as given
  control.SetGridValues(30, "99");      // no such row: nothing else is touched
  EXPECT_EQ(control.GridValues(5), "abc 1,5");
  EXPECT_EQ(control.GridValues(2), "10.00");
  EXPECT_EQ(control.GridValues(30), "");
  EXPECT_EQ(engine.CurrentRow(), 2);
}

TEST_F(GovtDetailsTest, EnterInTheLastRowMovesToCommentsOrElseToTheAmount) {
  StartOnRow(12);
  user.PressEnter();
  EXPECT_EQ(screen.FocusedName(), "txtComments");

  control.SetCommentsEnabled(false);
  StartOnRow(12);
  user.PressTab();
  EXPECT_EQ(screen.FocusedName(), "txtPaymentAmount");

  StartOnRow(3);
  user.PressEnter();
  EXPECT_EQ(screen.FocusedName(), "grItems");
}

TEST_F(GovtDetailsTest, StatementOnlyLocksAllButTheAmountAndKeepsValues) {
  control.SetComments("CALL MARY");
  control.SetOtherAmount(Variant(Currency::FromInteger(3)));
  control.SetPeriodFrom(*Date::Parse("2026/01/01"));
  user.Click(screen.Get<platform::CheckBox>("chkStatementOnly"));
  EXPECT_EQ(control.StatementOnly(), Variant(std::int16_t{1}));
  for (const char* name : {"dtPeriodFrom", "dtPeriodTo", "dtDueDate", "grItems", "txtComments", "txtOtherAmount"}) {
    EXPECT_FALSE(screen.surface.Find(name)->Enabled()) << name;
  }
  EXPECT_TRUE(control.AmountEnabled());
  EXPECT_EQ(screen.Get<platform::TextBox>("txtComments").BackColor(), colors::k3DLight);
  EXPECT_EQ(screen.Number("txtOtherAmount").BackColor(), colors::k3DLight);
  EXPECT_EQ(control.Comments(), "CALL MARY");

  control.SetStatementOnly(Variant("0"));
  EXPECT_TRUE(control.CommentsEnabled());
  EXPECT_EQ(screen.Number("txtOtherAmount").BackColor(), colors::kWindowBackground);
  EXPECT_EQ(control.OtherAmount(), Variant(Currency::FromInteger(3)));
  EXPECT_EQ(control.PeriodFrom().ToText(), "2026/01/01");

  control.SetStatementOnly(Variant(true));  // -1 as a 16-bit integer
  EXPECT_EQ(control.StatementOnly(), Variant(std::int16_t{1}));
  EXPECT_FALSE(control.CommentsEnabled());
}

TEST_F(GovtDetailsTest, CommentsKeepLettersDigitsAndSomePunctuationInUpperCase) {
  user.Click(screen.Get<platform::TextBox>("txtComments"));
  user.Type("tel: 555-1234, ext.9 #2");
  EXPECT_EQ(control.Comments(), "TEL 555-1234, EXT.9 2");
}

TEST_F(GovtDetailsTest, AmountLeavingTheControlIsTheOnlyFocusEvent) {
  user.Click(screen.Number("txtPaymentAmount"));
  user.Type("12345");
  user.PressTab();  // to the other amount: no event
  EXPECT_THAT(host.EventNames(), IsEmpty());
  EXPECT_EQ(control.Amount(), Variant(Currency::FromText("123.45")));
  user.Type("7");
  user.PressTab();  // other amount out of the control: divided, still no event
  EXPECT_EQ(control.OtherAmount(), Variant(Currency::FromText("0.07")));
  EXPECT_THAT(host.EventNames(), IsEmpty());
  user.Click(screen.Number("txtPaymentAmount"));
  user.LeaveControl();
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusAmount"));
}

TEST_F(GovtDetailsTest, ClearKeepsStatementOnlyAndTheOtherAmount) {
  control.SetStatementOnly(Variant(std::int16_t{1}));
  control.SetOtherAmount(Variant(Currency::FromInteger(8)));
  control.SetAmount(Variant(Currency::FromInteger(9)));
  control.SetRows(20);
  control.Clear();
  EXPECT_EQ(control.GridNumberofRows(), 12);
  EXPECT_EQ(control.StatementOnly(), Variant(std::int16_t{1}));
  EXPECT_EQ(control.OtherAmount(), Variant(Currency::FromInteger(8)));
  EXPECT_TRUE(control.Amount().IsEmpty());
}

TEST_F(GovtDetailsTest, VariantAmountsAreSetAsTheRuleSays) {
  control.SetAmount(Variant(1234.0));
  EXPECT_EQ(screen.Number("txtPaymentAmount").Text(), "1234.00");
  EXPECT_EQ(screen.Number("txtPaymentAmount").DisplayText(), "1234.00");
  control.SetOtherAmount(Variant(1234.0));
  EXPECT_EQ(screen.Number("txtOtherAmount").Text(), "1234");  // written as it is
  control.SetAmount(Variant(-3.0));
  EXPECT_EQ(screen.Number("txtPaymentAmount").DisplayText(), "-3.00");
}

TEST_F(GovtDetailsTest, SetFocusPeriodToLandsInPeriodFrom) {
  control.SetFocusPeriodTo();
  EXPECT_EQ(screen.FocusedName(), "dtPeriodFrom");
}

TEST_F(GovtDetailsTest, EnabledStaysOnTheSurface) {
  control.SetEnabled(false);
  EXPECT_FALSE(control.Enabled());
  EXPECT_TRUE(control.CommentsEnabled());
  control.SetFocusComment();
  EXPECT_EQ(screen.FocusedName(), "");  // a disabled surface takes no input
}

TEST_F(GovtDetailsTest, PersistsWithTheYellowTitleDefault) {
  testing::Screen<GovtDetails> fresh;
  fresh.control.InitProperties();
  EXPECT_EQ(fresh.control.BackColorTitle(), colors::kTitleYellow);
  EXPECT_EQ(fresh.Get<platform::DateEdit>("dtDueDate").CalendarTitleColor(), colors::kTitleYellow);
  control.SetBusinessMode(true);
  control.SetBackColor(Rgb(200, 0, 0));
  headless::MemoryPropertyBag bag;
  control.WriteProperties(bag);
  testing::Screen<GovtDetails> reloaded;
  reloaded.control.ReadProperties(bag);
  EXPECT_TRUE(reloaded.control.BusinessMode());
  EXPECT_EQ(reloaded.surface.BackColor(), Rgb(200, 0, 0));
  reloaded.surface.SetSize(1, 1);
  EXPECT_EQ(reloaded.surface.Width(), 1860);
  EXPECT_EQ(reloaded.surface.Height(), 5340);
}

}  // namespace
}  // namespace zenta
