#include "zenta/core/message_template.h"

#include <gtest/gtest.h>

namespace zenta {
namespace {

using Figures = std::vector<std::string>;

TEST(MessageTemplate, FillsByNumberSoATranslationMayReorder) {
  EXPECT_EQ(FillTemplate("Line %1: %2", {"2", "not an amount"}), "Line 2: not an amount");
  EXPECT_EQ(FillTemplate("%2 (ligne %1)", {"2", "x"}), "x (ligne 2)");
  // A figure holding a placeholder is not filled again; a missing one stays visible.
  EXPECT_EQ(FillTemplate("Row %1, %2", {"%2", "b"}), "Row %2, b");
  EXPECT_EQ(FillTemplate("Row %1, %3", {"1"}), "Row 1, %3");
  EXPECT_EQ(FillTemplate("100 % sure", {}), "100 % sure");
}

TEST(MessageTemplate, MatchesTheTextsItFillsAndNothingElse) {
  EXPECT_EQ(MatchTemplate("Line %1: the account %2 is not in the chart.", "Line 12: the account 5100-A is not in the chart."),
            (Figures{"12", "5100-A"}));
  // The last figure takes the rest, so a reason may hold the words that separate figures.
  EXPECT_EQ(MatchTemplate("Row %1, %2: %3", "Row 3, Invoice Amount: refused: over the limit"),
            (Figures{"3", "Invoice Amount", "refused: over the limit"}));
  EXPECT_EQ(MatchTemplate("%1 (inactive)", "5100 OFFICE (inactive)"), (Figures{"5100 OFFICE"}));
  EXPECT_EQ(MatchTemplate("Rows: %1", "Rows: "), (Figures{""}));
  EXPECT_EQ(MatchTemplate("Line %1: %2", "Row 1: x"), std::nullopt);
  EXPECT_EQ(MatchTemplate("Line %1: %2", "Line 1"), std::nullopt);
  EXPECT_EQ(MatchTemplate("%1 (inactive)", " (inactive"), std::nullopt);
  EXPECT_EQ(MatchTemplate("Paste", "Paste"), (Figures{}));
  EXPECT_EQ(MatchTemplate("Paste", "Paste it"), std::nullopt);
}

}  // namespace
}  // namespace zenta
