#include "zenta/entry/undo_history.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace zenta::entry {
namespace {

// A value edited in steps, each kept as the swap the history runs.
struct Edited {
  UndoHistory history{3};
  int value = 0;
  int changes = 0;

  Edited() {
    history.OnChanged([this] { ++changes; });
  }
  void Set(int next) {
    auto kept = std::make_shared<int>(value);
    value = next;
    history.Push([this, kept] { std::swap(value, *kept); });
  }
};

TEST(UndoHistoryTest, UndoAndRedoRestoreEachValueAndANewStepDropsTheRedo) {
  Edited edited;
  edited.Set(1);
  edited.Set(2);
  EXPECT_TRUE(edited.history.Undo());
  EXPECT_EQ(edited.value, 1);
  EXPECT_TRUE(edited.history.Undo());
  EXPECT_EQ(edited.value, 0);
  EXPECT_FALSE(edited.history.Undo());
  EXPECT_TRUE(edited.history.Redo());
  EXPECT_EQ(edited.value, 1);
  edited.Set(5);
  EXPECT_FALSE(edited.history.CanRedo());
  EXPECT_TRUE(edited.history.Undo());
  EXPECT_EQ(edited.value, 1);
}

TEST(UndoHistoryTest, TheOldestStepsGoPastTheLimitAndClearForgetsAll) {
  Edited edited;
  for (int i = 1; i <= 5; ++i) edited.Set(i);
  int undone = 0;
  while (edited.history.Undo()) ++undone;
  EXPECT_EQ(undone, 3);
  EXPECT_EQ(edited.value, 2);
  const int before = edited.changes;
  edited.history.Clear();
  EXPECT_FALSE(edited.history.CanRedo());
  EXPECT_EQ(edited.changes, before + 1);
  edited.history.Clear();  // nothing left: no news
  EXPECT_EQ(edited.changes, before + 1);
}

}  // namespace
}  // namespace zenta::entry
