#pragma once

#include <memory>

namespace zenta::platform {

// Tells code that hands control to someone else (a host's event handler, a modal window)
// whether the object it belongs to outlived the call: a host may destroy a control from any of
// its handlers. Read a Watch taken before the call, never a member, once the call returns.
// A copied Lifetime is a new one; watches never keep the object alive.
class Lifetime {
 public:
  class Watch {
   public:
    bool Alive() const { return !token_.expired(); }

   private:
    friend class Lifetime;
    explicit Watch(std::weak_ptr<const bool> token) : token_(std::move(token)) {}
    std::weak_ptr<const bool> token_;
  };

  Lifetime() = default;
  Lifetime(const Lifetime&) : Lifetime() {}
  Lifetime& operator=(const Lifetime&) { return *this; }

  Watch Watched() const { return Watch(token_); }

 private:
  std::shared_ptr<const bool> token_ = std::make_shared<const bool>(true);
};

}  // namespace zenta::platform
