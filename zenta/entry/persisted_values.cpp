#include "zenta/entry/persisted_values.h"

#include <cstdint>

#include "zenta/core/host_error.h"

namespace zenta::entry {

namespace {
template <class T, class Convert>
T ReadOr(const platform::PropertyBag& bag, const std::string& key, const Variant& stored_default, T default_value,
         Convert convert) {
  try {
    return convert(bag.Read(key, stored_default));
  } catch (const HostError&) {
    bag.NoteRefused(key);
    return default_value;
  }
}
}  // namespace

Variant ColorVariant(OleColor color) { return Variant(static_cast<std::int32_t>(color)); }

bool ReadFlag(const platform::PropertyBag& bag, const std::string& key, bool default_value) {
  return ReadOr(bag, key, Variant(default_value), default_value, [](const Variant& v) { return v.ToBool(); });
}

OleColor ReadColor(const platform::PropertyBag& bag, const std::string& key, OleColor default_value) {
  return ReadOr(bag, key, ColorVariant(default_value), default_value,
                [](const Variant& v) { return static_cast<OleColor>(v.ToLong()); });
}

std::string ReadText(const platform::PropertyBag& bag, const std::string& key, const std::string& default_value) {
  return ReadOr(bag, key, Variant(default_value), default_value, [](const Variant& v) { return v.ToString(); });
}

}  // namespace zenta::entry
