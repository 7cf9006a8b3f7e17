#include "tests/monkey/monkey.h"

#include <cmath>
#include <exception>
#include <map>
#include <sstream>

#include "zenta/controls/distribution/distribution_opener.h"
#include "zenta/core/host_error.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/keys.h"

namespace zenta::monkey {

namespace {

constexpr const char* kTypedCharacters = "0123456789012345.-, abcXYZ/";

template <class T>
T Pick(Random& random, std::initializer_list<T> choices) {
  return *(choices.begin() + static_cast<std::ptrdiff_t>(random() % choices.size()));
}

// Keeps a few answers ready: a box the monkey provoked is answered at random, never left open.
void KeepAnswersReady(headless::Host& host, Random& random) {
  while (host.PendingAnswers() < 4) {
    host.ExpectMessage(Pick(random, {platform::MessageResult::Ok, platform::MessageResult::Yes,
                                     platform::MessageResult::No, platform::MessageResult::Cancel}));
  }
}

// One thing a person does to whatever window is active.
void UserEvent(World& world, Random& random, const std::vector<platform::Widget*>& children) {
  headless::User& user = world.user;
  switch (random() % 12) {
    case 0:
    case 1: {
      if (children.empty()) return;
      platform::Widget* target = children[random() % children.size()];
      if (auto* grid = dynamic_cast<platform::Grid*>(target)) {
        const platform::GridEngine& engine = grid->Engine();
        const int rows = engine.DisplayRowCount();
        const int columns = engine.ColumnCount();
        if (rows > 0 && columns > 0) {
          user.ClickCell(*grid, engine.FirstRow() + static_cast<int>(random() % static_cast<unsigned>(rows)),
                         static_cast<int>(random() % static_cast<unsigned>(columns)));
        }
      } else {
        user.Click(*target);
      }
      return;
    }
    case 2:
    case 3:
    case 4: {
      std::string typed;
      const std::string_view pool = kTypedCharacters;
      for (std::size_t n = 1 + random() % 5; n > 0; --n) typed += pool[random() % pool.size()];
      user.Type(typed);
      return;
    }
    case 5: user.PressTab(); return;
    case 6: user.PressShiftTab(); return;
    case 7: user.PressEnter(random() % 4 == 0 ? platform::kShift : platform::kNoShift); return;
    case 8: user.PressBackspace(); return;
    case 9:
      user.PressKey(Pick(random, {platform::keys::kF2, platform::keys::kF3, platform::keys::kF4, platform::keys::kUp,
                                  platform::keys::kDown, platform::keys::kLeft, platform::keys::kRight,
                                  platform::keys::kDelete}),
                    random() % 6 == 0 ? platform::kCtrl : platform::kNoShift);
      return;
    case 10: user.PressEscape(); return;
    default:
      if (world.next_field) user.Click(*world.next_field);
      return;
  }
}

std::string FocusFinding(const World& world) {
  const platform::Widget* focused = world.form.Focused();
  if (!focused || world.form.CanFocus(focused)) return {};
  return "the focus is on " + focused->Name() + ", which cannot hold it";
}

}  // namespace

std::string Put(const std::function<void()>& put, const std::set<int>& documented) {
  try {
    put();
  } catch (const HostError& error) {
    if (documented.count(error.Number()) == 0) {
      return "a host put raised undocumented error " + std::to_string(error.Number()) + " (" + error.Description() + ")";
    }
  } catch (const std::exception& error) {
    return std::string("a host put raised ") + error.what();
  }
  return {};
}

Currency RandomAmount(Random& random) {
  switch (random() % 4) {
    case 0: return Currency::FromUnits(static_cast<std::int64_t>(random() % 2000001) * 100 - 100000000);
    case 1: return Currency::FromUnits(static_cast<std::int64_t>(random() % 100000000));
    case 2: return Currency();
    default:  // up to a hundred billion dollars, either sign: more than any bill
      return Currency::FromUnits(static_cast<std::int64_t>(random() % 2000000000000001ULL) - 1000000000000000LL);
  }
}

std::string RandomText(Random& random, std::size_t longest) {
  std::string text;
  const std::string_view pool = "ABCdef 0123456789-/.";
  for (std::size_t n = random() % (longest + 1); n > 0; --n) text += pool[random() % pool.size()];
  return text;
}

namespace {
std::map<std::string, std::function<std::unique_ptr<Driver>()>>& Registry() {
  static std::map<std::string, std::function<std::unique_ptr<Driver>()>> registry;
  return registry;
}
}  // namespace

bool RegisterDriver(const std::string& name, std::function<std::unique_ptr<Driver>()> make) {
  Registry()[name] = std::move(make);
  return true;
}

std::vector<std::unique_ptr<Driver>> AllDrivers() {
  std::vector<std::unique_ptr<Driver>> drivers;
  for (const auto& [name, make] : Registry()) drivers.push_back(make());
  return drivers;
}

int DateRefusal() { return HostError::Object(Date::kOutOfRange, "", "").Number(); }
int RowsRefusal() { return HostError::Object(20, "", "").Number(); }
int WindowOpenRefusal() { return HostError::Object(DistributionOpener::kAlreadyOpen, "", "").Number(); }

Date RandomDate(Random& random) {
  // Mostly ordinary days, sometimes none, sometimes outside the years a field takes.
  switch (random() % 5) {
    case 0: return Date();
    case 1: return Date::FromDayNumber(static_cast<std::int32_t>(random()));
    default: return Date::FromDayNumber(40000 + static_cast<std::int32_t>(random() % 20000));
  }
}

float RandomSingle(Random& random) {
  switch (random() % 4) {
    case 0: return 3e38f;
    case 1: return std::nanf("");
    default: return static_cast<float>(random() % 10000000) / 100.0f;
  }
}

std::string AmountInRange(const char* what, Currency value) {
  if (value > Currency::FromInteger(1000000000000LL) || value < Currency::FromInteger(-1000000000000LL)) {
    return std::string(what) + " reads " + value.ToString() + ", more than a field can hold";
  }
  return {};
}

std::string FieldShows(const platform::NumberEdit& field, Currency value) {
  if (field.HasFocus()) return {};
  std::string shown = field.DisplayText();
  std::erase(shown, ',');
  const std::optional<Currency> read = shown.empty() ? std::optional<Currency>(Currency()) : Currency::Parse(shown);
  if (read && read->RoundedTo(2) == value.RoundedTo(2)) return {};
  return field.Name() + " shows \"" + field.DisplayText() + "\" but reads " + value.ToString();
}

std::string Play(Driver& driver, std::uint64_t seed, int events) {
  Random random(seed);
  std::unique_ptr<World> world;
  // The control holds on to its surface: it goes first.
  struct Destroyed {
    Driver& driver;
    ~Destroyed() { driver.Destroy(); }
  } destroyed{driver};
  int event = 0;
  auto finding = [&](const std::string& what) {
    std::ostringstream out;
    out << driver.Name() << ", seed " << seed << ", event " << event << ": " << what;
    return out.str();
  };
  // A careless host: now and then, from an event handler or while the distribution window is
  // open, it closes its form (the control goes) or makes a call of its own in the middle.
  bool closed = false;
  std::string hostile_finding;
  auto hostile = [&](unsigned one_in) {
    if (closed || random() % one_in != 0) return;
    if (random() % 3 == 0) {
      closed = true;
      driver.Destroy();
      return;
    }
    if (std::string broken = driver.HostPut(random); !broken.empty() && hostile_finding.empty()) {
      hostile_finding = "a host put from a handler: " + broken;
    }
  };
  auto open_form = [&] {
    driver.Destroy();
    world.reset();
    world = std::make_unique<World>();
    driver.Create(*world);
    world->next_field = &world->form.AddHostField("txtHostNext");
    world->form.Show();
    world->host.OnEvent([&](platform::RaisedEvent&) { hostile(64); });
    closed = false;
  };
  open_form();
  // What a person does in the distribution window when it shows: a few events, then a button.
  std::function<void(headless::Dialog&)> in_dialog;
  std::string dialog_finding;
  in_dialog = [&](headless::Dialog& dialog) {
    std::vector<platform::Widget*> children = dialog.Children();
    for (int n = static_cast<int>(random() % 12); n > 0 && dialog.IsShown(); --n) {
      KeepAnswersReady(world->host, random);
      UserEvent(*world, random, children);
      hostile(32);
    }
    if (!dialog.IsShown()) return;
    const char* button = random() % 3 == 0 ? "cmdGLCancel" : "cmdGLAccept";
    KeepAnswersReady(world->host, random);
    world->user.Click(dialog.Get<platform::Button>(button));
    if (dialog.IsShown()) world->user.Click(dialog.Get<platform::Button>("cmdGLCancel"));
    FrmDistribution& window = world->context.Distribution();
    if (window.Chosen() && dialog_finding.empty()) {
      // An accepted split adds up to the amount exactly.
      const Variant total = window.CalculateDistAmounts();
      if (total.IsEmpty() || total.ToCurrency() != window.AmountToDistribute()) {
        dialog_finding = "an accepted split of " + window.AmountToDistribute().ToString() + " adds up to " +
                         (total.IsEmpty() ? std::string("nothing") : total.ToCurrency().ToString());
      }
    }
  };
  for (event = 1; event <= events; ++event) {
    KeepAnswersReady(world->host, random);
    while (world->form.PendingDialogScripts() < 3) world->form.ExpectDialog(in_dialog);
    // What the host was told is not kept: a long run stays in the same memory.
    world->host.ClearEvents();
    if (random() % 8 == 0) {
      if (std::string broken = driver.HostPut(random); !broken.empty()) return finding(broken);
    } else {
      try {
        UserEvent(*world, random, world->surface.Children());
      } catch (const headless::UnexpectedDialog& error) {
        return finding(std::string("a user event raised: ") + error.what());
      } catch (const std::exception& error) {
        return finding(std::string("a user event raised: ") + error.what());
      }
    }
    if (!hostile_finding.empty()) return finding(hostile_finding);
    if (!dialog_finding.empty()) return finding(dialog_finding);
    if (closed) {
      // The host opens the form again with a new control.
      world->form.Settle();
      open_form();
      continue;
    }
    if (std::string broken = FocusFinding(*world); !broken.empty()) return finding(broken);
    try {
      if (std::string broken = driver.Check(); !broken.empty()) return finding(broken);
    } catch (const std::exception& error) {
      return finding(std::string("reading the control back raised: ") + error.what());
    }
  }
  return {};
}

}  // namespace zenta::monkey
