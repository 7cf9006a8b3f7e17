#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <vector>

namespace zenta::entry {

// The payer's steps in a data-entry control, to undo and redo. A step is a swap: the control
// hands over a function that exchanges what it holds now with what it held before the step
// (kept inside the function), so undoing and redoing are the same call and each restores the
// exact values. The oldest steps are dropped beyond `limit`.
class UndoHistory {
 public:
  using Swap = std::function<void()>;

  explicit UndoHistory(std::size_t limit = 100) : limit_(limit) {}

  // A new step: whatever was undone can no longer be redone.
  void Push(Swap step);
  // Each returns whether there was a step; the step's swap ran.
  bool Undo();
  bool Redo();
  bool CanUndo() const { return !undo_.empty(); }
  bool CanRedo() const { return !redo_.empty(); }
  void Clear();
  // Runs whenever CanUndo or CanRedo may have changed.
  void OnChanged(std::function<void()> listener) { changed_ = std::move(listener); }

 private:
  void Changed() const {
    if (changed_) changed_();
  }

  std::size_t limit_;
  std::deque<Swap> undo_;
  std::vector<Swap> redo_;
  std::function<void()> changed_;
};

}  // namespace zenta::entry
