// Any keystroke script a control or host injects ("{TAB}", "+{TAB}", "{ENTER}"...) parses or is
// refused with std::invalid_argument, and what parses is delivered to a form without a crash.
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/key_script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string script(reinterpret_cast<const char*>(data), size);
  try {
    (void)zenta::platform::ParseKeyScript(script);
  } catch (const std::invalid_argument&) {
    return 0;  // the documented refusal of a script it does not understand
  }
  zenta::headless::Form form;
  form.AddHostField("first");
  form.AddHostField("second");
  form.Show();
  try {
    form.QueueKeys(script);
    form.ProcessQueuedKeys();
  } catch (const std::logic_error&) {
    // keys that keep injecting more are stopped, as documented
  }
  return 0;
}
