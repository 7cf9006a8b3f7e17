#include "zenta/records/cls_distributions.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/error_number.h"

#include "zenta/core/host_error.h"
#include "zenta/records/cls_invoice.h"

namespace zenta {
namespace {

using test_support::ErrorNumberOf;

clsDistributions ThreeLines() {
  clsDistributions lines;
  lines.Add(Variant(), "5100", Currency::FromInteger(60), "rent");
  lines.Add(Variant(), "5200", Currency::FromInteger(30));
  lines.Add(Variant(), "5300", Currency::FromInteger(10), "fees");
  return lines;
}

TEST(clsDistributions, PositionsCountFromOneAndCloseUpAfterRemove) {
  auto lines = ThreeLines();
  EXPECT_EQ(lines.Item(std::int16_t{1})->GLAccount, "5100");
  lines.Remove(std::int16_t{1});
  EXPECT_EQ(lines.Count(), 2);
  EXPECT_EQ(lines.Item(1)->GLAccount, "5200");
  EXPECT_EQ(lines.Item("FEES")->GLAccount, "5300");  // keys ignore case
  EXPECT_EQ(ErrorNumberOf([&] { lines.Item("rent"); }), 9);  // its key went with it
}

TEST(clsDistributions, BadPositionsAndKeysFailAndChangeNothing) {
  auto lines = ThreeLines();
  for (const Variant& bad : {Variant(0), Variant(4), Variant(-1), Variant("nope"), Variant("")}) {
    EXPECT_EQ(ErrorNumberOf([&] { lines.Item(bad); }), 9) << bad.ToString();
    EXPECT_EQ(ErrorNumberOf([&] { lines.Remove(bad); }), 9) << bad.ToString();
  }
  EXPECT_EQ(lines.Count(), 3);
}

TEST(clsDistributions, DuplicateKeyIsRefusedAndNotAdded) {
  auto lines = ThreeLines();
  EXPECT_EQ(ErrorNumberOf([&] { lines.Add(Variant(), "9999", Currency(), "Rent"); }), 457);
  EXPECT_EQ(lines.Count(), 3);
  lines.Add(Variant(), "9999", Currency());  // no key: any number of these
  lines.Add(Variant(), "9999", Currency(), "");
  EXPECT_EQ(lines.Count(), 5);
}

TEST(clsDistributions, AddReturnsTheHeldElementWithItsIdAsGiven) {
  clsDistributions lines;
  auto owner = std::make_shared<clsInvoice>();
  const Variant ids[] = {Variant("A-7"), Variant(), Variant(std::int16_t{7}), Variant(2.5), Variant::Null(),
                         Variant(owner)};
  for (const Variant& id : ids) lines.Add(id, "5100", Currency::FromText("12.34"));
  for (std::int32_t i = 1; i <= lines.Count(); ++i) {
    EXPECT_EQ(lines.Item(i)->ID, ids[i - 1]) << i;  // same type, same value, same object
  }
  EXPECT_EQ(lines.Item(6)->ID.ToObjectOf<clsInvoice>(), owner);
  auto added = lines.Add(Variant(), "5200", Currency());
  EXPECT_EQ(lines.Item(7), added);
}

TEST(clsDistributions, NumbersArePositionsAndTextsAreKeys) {
  auto lines = ThreeLines();
  EXPECT_EQ(lines.Item(2.0)->GLAccount, "5200");
  EXPECT_EQ(lines.Item(Currency::FromInteger(3))->GLAccount, "5300");
  EXPECT_EQ(lines.Item(std::int16_t{1})->GLAccount, "5100");
  EXPECT_EQ(ErrorNumberOf([&] { lines.Item("2"); }), 9);  // no element has the key "2"
  EXPECT_EQ(ErrorNumberOf([&] { lines.Item(Variant()); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { lines.Item(Variant::Null()); }), 9);
  EXPECT_EQ(ErrorNumberOf([&] { lines.Item(1e12); }), 9);
}

TEST(clsDistributions, ElementsOutliveTheCollectionWhileHeld) {
  std::shared_ptr<clsDistribution> kept;
  {
    auto lines = ThreeLines();
    kept = lines.Item(2);
    lines.Clear();
  }
  EXPECT_EQ(kept->GLAccount, "5200");
}

TEST(clsDistributions, ClearCountsInSixteenBits) {
  clsDistributions lines;
  lines.Clear();
  for (int i = 0; i < 32767; ++i) lines.Add(Variant(), "1", Currency());
  lines.Clear();
  EXPECT_EQ(lines.Count(), 0);

  for (int i = 0; i < 32768; ++i) lines.Add(Variant(), "1", Currency());
  EXPECT_EQ(ErrorNumberOf([&] { lines.Clear(); }), 6);
  EXPECT_EQ(lines.Count(), 32768);
  lines.Remove(32768);
  lines.Clear();
  EXPECT_EQ(lines.Count(), 0);
}

TEST(clsDistributions, IteratesInPositionOrder) {
  std::string accounts;
  for (const auto& line : ThreeLines()) accounts += line->GLAccount + " ";
  EXPECT_EQ(accounts, "5100 5200 5300 ");
}

TEST(clsDistributions, ACopyAndItsOriginalNeverShareAnElement) {
  clsDistributions original;
  original.Reserve(8);
  original.Add(Variant(), "5100", Currency::FromInteger(1));
  clsDistributions copy = original;
  const auto from_copy = copy.Add(Variant(), "5200", Currency::FromInteger(2));
  const auto from_original = original.Add(Variant(), "5300", Currency::FromInteger(3));
  EXPECT_NE(from_copy.get(), from_original.get());
  EXPECT_EQ(from_copy->GLAccount, "5200");
  clsDistributions moved = std::move(original);
  moved.Add(Variant(), "5400", Currency(), "k");
  EXPECT_EQ(moved.Item("K")->GLAccount, "5400");
  EXPECT_EQ(moved.Count(), 3);
  EXPECT_EQ(copy.Count(), 2);
}

TEST(clsDistributions, ReservedRoomAndBeyondKeepEveryLine) {
  std::vector<clsDistributions::Element> held;
  {
    clsDistributions lines;
    lines.Reserve(3);
    for (int i = 0; i < 40; ++i) held.push_back(lines.Add(Variant(i), std::to_string(i), Currency::FromInteger(i), "k" + std::to_string(i)));
    lines.Remove("K5");
    lines.Add(Variant(), "again", Currency(), "k5");
    EXPECT_EQ(lines.Item("k5")->GLAccount, "again");
    EXPECT_EQ(lines.Item(6)->GLAccount, "6");
  }
  for (int i = 0; i < 40; ++i) EXPECT_EQ(held[static_cast<std::size_t>(i)]->GLAccount, std::to_string(i));
}

// Lines kept elsewhere, counting how often they are copied out.
class CountedSource final : public DistributionSource {
 public:
  explicit CountedSource(std::vector<std::string> accounts) : accounts_(std::move(accounts)) {}
  std::size_t LineCount() const override { return accounts_.size(); }
  void CopyLines(std::span<clsDistribution> into) const override {
    ++copies;
    for (std::size_t i = 0; i < accounts_.size(); ++i) {
      into[i].ID = Variant(static_cast<std::int32_t>(i));
      into[i].GLAccount = accounts_[i];
      into[i].Amount = Currency::FromInteger(static_cast<std::int64_t>(i) + 1);
    }
  }
  mutable int copies = 0;

 private:
  std::vector<std::string> accounts_;
};

TEST(clsDistributions, OverASourceCopiesTheLinesOnceWhenFirstReached) {
  const auto source = std::make_shared<CountedSource>(std::vector<std::string>{"5100", "5200", "5300"});
  clsDistributions lines(source);
  EXPECT_EQ(lines.Count(), 3);
  EXPECT_EQ(source->copies, 0);
  const auto second = lines.Item(2);
  EXPECT_EQ(second->GLAccount, "5200");
  EXPECT_EQ(second->Amount, Currency::FromInteger(2));
  EXPECT_EQ(lines.Item(2).get(), second.get());  // the same element every time
  std::string accounts;
  for (const auto& line : lines) accounts += line->GLAccount + " ";
  EXPECT_EQ(accounts, "5100 5200 5300 ");
  EXPECT_EQ(source->copies, 1);
  EXPECT_EQ(ErrorNumberOf([&] { lines.Item("5100"); }), 9);  // copied lines have no key
}

TEST(clsDistributions, OverASourceChangesLikeAnyCollection) {
  const auto source = std::make_shared<CountedSource>(std::vector<std::string>{"5100", "5200"});
  clsDistributions added(source);
  added.Add(Variant(), "5300", Currency(), "k");
  EXPECT_EQ(added.Count(), 3);
  EXPECT_EQ(added.Item("K")->GLAccount, "5300");
  EXPECT_EQ(added.Item(1)->GLAccount, "5100");

  clsDistributions removed(source);
  removed.Remove(1);
  EXPECT_EQ(removed.Count(), 1);
  EXPECT_EQ(removed.Item(1)->GLAccount, "5200");

  clsDistributions cleared(source);
  cleared.Clear();
  EXPECT_EQ(cleared.Count(), 0);
  for (const auto& line : cleared) ADD_FAILURE() << line->GLAccount;
  EXPECT_EQ(ErrorNumberOf([&] { cleared.Item(1); }), 9);

  // Each collection changed its own copy; the held element outlives them all.
  clsDistributions::Element held;
  {
    clsDistributions other(source);
    held = other.Item(2);
    held->GLAccount = "changed";
    EXPECT_EQ(other.Item(2)->GLAccount, "changed");
  }
  EXPECT_EQ(held->GLAccount, "changed");
  EXPECT_EQ(clsDistributions(source).Item(2)->GLAccount, "5200");
}

TEST(clsDistributions, ACopyOverASourceSharesItsElementsAsAnyCopyDoes) {
  const auto source = std::make_shared<CountedSource>(std::vector<std::string>{"5100"});
  clsDistributions original(source);
  clsDistributions copy = original;
  copy.Item(1)->GLAccount = "changed";
  EXPECT_EQ(original.Item(1)->GLAccount, "changed");
  clsDistributions assigned;
  assigned = clsDistributions(source);
  EXPECT_EQ(assigned.Item(1)->GLAccount, "5100");
  clsDistributions empty(nullptr);
  EXPECT_EQ(empty.Count(), 0);
}

}  // namespace
}  // namespace zenta
