#pragma once

namespace zenta::headless {

// Raises a re-entrancy flag for one scope and lowers it on the way out, exceptions included, so
// that a handler that throws does not leave the toolkit believing it is still inside.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
  ~ScopedFlag() { flag_ = false; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
};

}  // namespace zenta::headless
