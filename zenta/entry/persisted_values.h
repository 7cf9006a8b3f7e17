#pragma once

#include <string>

#include "zenta/core/ole_color.h"
#include "zenta/platform/property_bag.h"

namespace zenta::entry {

// Reading one persisted property, the same way for every control and every store: a value
// that does not convert to the key's type, or is out of its range, gives the key's default and
// is noted on the bag as refused.
bool ReadFlag(const platform::PropertyBag& bag, const std::string& key, bool default_value);
OleColor ReadColor(const platform::PropertyBag& bag, const std::string& key, OleColor default_value);
std::string ReadText(const platform::PropertyBag& bag, const std::string& key, const std::string& default_value);

// The stored form of a colour.
Variant ColorVariant(OleColor color);

}  // namespace zenta::entry
