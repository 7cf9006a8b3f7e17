#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/number_edit.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/headless/user.h"

namespace zenta::monkey {

using Random = std::mt19937_64;

// A host screen on the headless toolkit for one control: the form, host services, the user,
// the library context with its distribution window, and a field of the host's own after it.
struct World {
  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  headless::Surface& surface = form.AddSurface("control", 6000, 6000);
  headless::TextBoxWidget* next_field = nullptr;
};

// What the monkey knows of one control: how to make it, what a host may put, and what must
// hold after every event. One driver a control, registered in drivers.cpp.
class Driver {
 public:
  virtual ~Driver() = default;
  virtual std::string Name() const = 0;
  // Creates the control on `world.surface`; Destroy deletes it, before the world goes.
  virtual void Create(World& world) = 0;
  virtual void Destroy() = 0;
  // One random property put or method call as a host makes them; returns a finding ("" for
  // none). Use Put() so that only the put's documented refusals may raise.
  virtual std::string HostPut(Random& random) = 0;
  // Checks the control's own invariants; returns a description of the first one broken, or "".
  virtual std::string Check() = 0;
};

// Every registered driver, by name. A driver file registers itself:
//   const bool kRegistered = RegisterDriver("StdPayment", [] { return std::make_unique<StdPaymentDriver>(); });
std::vector<std::unique_ptr<Driver>> AllDrivers();
bool RegisterDriver(const std::string& name, std::function<std::unique_ptr<Driver>()> make);

// Plays `events` seeded random events on `driver`'s control; returns "" or the first finding,
// with the seed and event number to replay it.
std::string Play(Driver& driver, std::uint64_t seed, int events);

// Runs a host's put; an error is a finding unless its number is among `documented`.
std::string Put(const std::function<void()>& put, const std::set<int>& documented = {});

// Shared by the drivers: values as a host might put them, some of them refused, and the error
// numbers of the documented refusals.
Currency RandomAmount(Random& random);
std::string RandomText(Random& random, std::size_t longest);
Date RandomDate(Random& random);
float RandomSingle(Random& random);
// "" when `value` is an amount a field can hold, else what is wrong.
std::string AmountInRange(const char* what, Currency value);
// "" when the amount field shows `value` (to the cent) while the payer is not typing in it.
std::string FieldShows(const platform::NumberEdit& field, Currency value);
inline constexpr int kOverflow = 6;
inline constexpr int kTypeMismatch = 13;
int DateRefusal();  // 0x80040015
int RowsRefusal();  // 0x80040014
// 0x80040016: the distribution window is already open (a host opening it from a handler).
int WindowOpenRefusal();

}  // namespace zenta::monkey
