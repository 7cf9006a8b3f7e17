#include "zenta/entry/undo_history.h"

#include <utility>

namespace zenta::entry {

void UndoHistory::Push(Swap step) {
  undo_.push_back(std::move(step));
  if (undo_.size() > limit_) undo_.pop_front();
  redo_.clear();
  Changed();
}

bool UndoHistory::Undo() {
  if (undo_.empty()) return false;
  Swap step = std::move(undo_.back());
  undo_.pop_back();
  step();
  redo_.push_back(std::move(step));
  Changed();
  return true;
}

bool UndoHistory::Redo() {
  if (redo_.empty()) return false;
  Swap step = std::move(redo_.back());
  redo_.pop_back();
  step();
  undo_.push_back(std::move(step));
  Changed();
  return true;
}

void UndoHistory::Clear() {
  if (undo_.empty() && redo_.empty()) return;
  undo_.clear();
  redo_.clear();
  Changed();
}

}  // namespace zenta::entry
