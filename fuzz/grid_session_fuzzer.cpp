// A payer typing and clicking in the invoice grid and in the distribution window it opens,
// with the host calling in between keys: whatever the input, nothing crashes, no sanitizer
// report, no keystroke raises, and an accepted split adds up to its amount.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <string>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/core/host_error.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/keys.h"

namespace {

using namespace zenta;

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  bool Done() const { return at_ >= size_; }
  std::uint8_t Byte() { return Done() ? 0 : data_[at_++]; }
  int Below(int n) { return n <= 0 ? 0 : Byte() % n; }
  std::int64_t Wide() {
    std::int64_t value = 0;
    for (int i = 0; i < 8; ++i) value = (value << 8) | Byte();
    return value;
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

// What a payer's keyboard offers: digits and separators, letters, filtered characters, and
// an accented letter (two bytes).
const char* const kTyped[] = {"0", "1", "5", "9", ".", "-", " ", "A", "z", "\"", "~", "/", "\xc3\xa9"};
const int kKeys[] = {platform::keys::kTab,  platform::keys::kEnter, platform::keys::kEscape, platform::keys::kBackspace,
                     platform::keys::kUp,   platform::keys::kDown,  platform::keys::kLeft,   platform::keys::kRight,
                     platform::keys::kF2,   platform::keys::kDelete, platform::keys::kPageUp, platform::keys::kPageDown};

struct Session {
  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  headless::Surface& surface = form.AddSurface("InvoiceEntry1", 9060, 2415);
  InvoiceEntry control{surface, host, context};
  bool veto = false;
};

Currency Amount(Input& in) {
  switch (in.Below(4)) {
    case 0: return Currency::FromUnits(in.Wide());  // anywhere in the range, the edges included
    case 1: return Currency::FromUnits(static_cast<std::int64_t>(in.Below(1'000'000)) * 100);
    default: return Currency::FromUnits(static_cast<std::int64_t>(in.Byte()) * 10'000 - 1'000'000);
  }
}

float Rate(Input& in) {
  const float rates[] = {1.35f, 0.0f, 1.234567f, -2.0f, 1e-7f, 3e38f, 0.125f};
  return rates[in.Below(7)];
}

void KeepReady(Session& s, Input& in) {
  const platform::MessageResult answers[] = {platform::MessageResult::Ok, platform::MessageResult::Yes,
                                             platform::MessageResult::No, platform::MessageResult::Cancel};
  while (s.host.PendingAnswers() < 4) s.host.ExpectMessage(answers[in.Below(4)]);
}

// One thing the payer does in `grid`.
void PayerEvent(Session& s, Input& in, platform::Grid& grid) {
  KeepReady(s, in);
  const int what = in.Below(8);
  if (what < 3) {
    s.user.Type(kTyped[in.Below(static_cast<int>(std::size(kTyped)))]);
  } else if (what < 6) {
    const int shift = in.Below(8) == 0 ? platform::kShift : in.Below(8) == 0 ? platform::kCtrl : platform::kNoShift;
    s.user.PressKey(kKeys[in.Below(static_cast<int>(std::size(kKeys)))], shift);
  } else {
    const platform::GridEngine& engine = grid.Engine();
    const int rows = engine.DisplayRowCount();
    if (rows > 0) s.user.ClickCell(grid, engine.FirstRow() + in.Below(rows), in.Below(engine.ColumnCount()));
  }
}

// A call a host makes between keys; only documented refusals (HostError) may come back.
void HostCall(Session& s, Input& in) {
  KeepReady(s, in);
  InvoiceEntry& c = s.control;
  const auto row = static_cast<std::int16_t>(in.Below(6) - 1);
  try {
    switch (in.Below(12)) {
      case 0:
      case 1: {
        const Variant gst = in.Below(2) ? Variant(Amount(in)) : Variant();
        c.AddInvoice(*Date::FromYmd(2026, 1 + in.Below(12), 1), std::string(static_cast<std::size_t>(in.Below(40)), 'N'),
                     Amount(in), gst, Variant(in.Below(4) == 0));
        break;
      }
      case 2: c.SetBusinessMode(in.Below(2) == 0); break;
      case 3:
        c.SetIPCurrency(in.Below(2) ? "USD" : "CAD");
        c.SetCurrencyRate(Rate(in));
        c.SetupIPGrid();
        break;
      case 4: c.ShowDistribution(); break;
      case 5: c.DeleteCurrentRow(); break;
      case 6: c.SetCurrentRow(row); break;
      case 7: (void)c.InvoiceValues(row); break;
      case 8: {
        std::string reason;
        bool incomplete = false;
        (void)c.IsDataValid(reason, incomplete);
        break;
      }
      case 9: s.veto = !s.veto; break;
      case 10: (void)c.TotalAmount(), (void)c.TotalExpense(), (void)c.InvoiceCount_DetailLines(); break;
      default: c.Clear(); break;
    }
  } catch (const HostError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input in(data, size);
  Session s;
  s.control.SetDefaultGLAccount("5100");
  s.host.OnEvent([&s](platform::RaisedEvent& event) {
    if (s.veto && event.args.size() == 2) event.args[1] = Variant(true);
  });
  s.host.SetToday(*Date::FromYmd(2026, 3, 1));
  s.form.AddHostField("txtHostNext");
  s.form.Show();

  std::function<void(headless::Dialog&)> in_window = [&](headless::Dialog& window) {
    FrmDistribution& dialog = s.context.Distribution();
    for (int n = in.Below(16); n > 0 && window.IsShown() && !in.Done(); --n) {
      PayerEvent(s, in, dialog.Grid());
    }
    if (!window.IsShown()) return;
    KeepReady(s, in);
    s.user.Click(window.Get<platform::Button>(in.Below(3) == 0 ? "cmdGLCancel" : "cmdGLAccept"));
    if (window.IsShown()) s.user.Click(window.Get<platform::Button>("cmdGLCancel"));
    if (dialog.Chosen()) {
      const Variant total = dialog.CalculateDistAmounts();
      if (total.IsEmpty() || total.ToCurrency() != dialog.AmountToDistribute()) std::abort();
    }
  };
  while (!in.Done()) {
    while (s.form.PendingDialogScripts() < 2) s.form.ExpectDialog(in_window);
    if (in.Below(6) == 0) {
      HostCall(s, in);
    } else {
      PayerEvent(s, in, s.control.grInvoices());
    }
  }
  return 0;
}
