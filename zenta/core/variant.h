#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"

namespace zenta {

// Base of every object a Variant can reference (the record classes derive from it).
class Object {
 public:
  virtual ~Object() = default;
};
using ObjectRef = std::shared_ptr<Object>;

// The value type that crosses late-bound interfaces: empty, null, boolean, 16- and 32-bit
// integers, single, double, currency, date, text or an object reference. Conversions follow
// automation rules: numbers convert among themselves with range checks (Overflow), text
// converts to numbers when it reads as one ("." is the separator) and otherwise raises
// TypeMismatch; empty reads as 0 or ""; null raises InvalidUseOfNull when a value is needed.
class Variant {
 public:
  enum class Type { Empty, Null, Boolean, Integer, Long, Single, Double, Currency, Date, String, Object };
  struct NullTag {
    friend bool operator==(NullTag, NullTag) { return true; }
  };

  Variant() = default;
  Variant(NullTag) : value_(NullTag{}) {}
  Variant(bool v) : value_(v) {}
  Variant(std::int16_t v) : value_(v) {}
  Variant(std::int32_t v) : value_(v) {}
  Variant(float v) : value_(v) {}
  Variant(double v) : value_(v) {}
  Variant(zenta::Currency v) : value_(v) {}
  Variant(zenta::Date v) : value_(v) {}
  Variant(std::string v) : value_(std::move(v)) {}
  Variant(const char* v) : value_(std::string(v)) {}
  Variant(ObjectRef v) : value_(std::move(v)) {}
  template <class T>
    requires std::is_base_of_v<Object, T>
  Variant(std::shared_ptr<T> v) : value_(ObjectRef(std::move(v))) {}

  static Variant Null() { return Variant(NullTag{}); }

  Type GetType() const;
  bool IsEmpty() const { return GetType() == Type::Empty; }
  bool IsNull() const { return GetType() == Type::Null; }
  bool IsObject() const { return GetType() == Type::Object; }
  bool IsNumeric() const;  // a number type, or text that reads as a number

  bool ToBool() const;
  std::int16_t ToInteger() const;
  std::int32_t ToLong() const;
  float ToSingle() const;
  double ToDouble() const;
  zenta::Currency ToCurrency() const;
  zenta::Date ToDate() const;
  std::string ToString() const;
  ObjectRef ToObject() const;  // TypeMismatch unless an object reference (or empty: nullptr)
  template <class T>
  std::shared_ptr<T> ToObjectOf() const;  // TypeMismatch unless it references a T

  // Same type and same value (object references compare by identity).
  friend bool operator==(const Variant& a, const Variant& b);

 private:
  using Storage = std::variant<std::monostate, NullTag, bool, std::int16_t, std::int32_t, float, double,
                               zenta::Currency, zenta::Date, std::string, ObjectRef>;
  Storage value_;
  [[noreturn]] static void ThrowTypeMismatch();
};

template <class T>
std::shared_ptr<T> Variant::ToObjectOf() const {
  auto object = ToObject();
  if (!object) return nullptr;
  auto typed = std::dynamic_pointer_cast<T>(object);
  if (!typed) ThrowTypeMismatch();
  return typed;
}

}  // namespace zenta
