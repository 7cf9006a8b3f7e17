#pragma once

#include <string_view>

namespace zenta::platform {

// A public property whose value a child widget holds: when the toolkit sees the widget change
// (typed, set, enabled or disabled, rows added or removed) it tells the host that the property
// may have changed, so that nothing has to poll the properties to find out.
struct FieldValue {
  std::string_view field;
  std::string_view property;
};

}  // namespace zenta::platform
