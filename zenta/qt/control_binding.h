#pragma once

#include <span>

#include "zenta/core/ole_color.h"
#include "zenta/platform/field_value.h"
#include "zenta/platform/property_bag.h"

namespace zenta::qt {

// What ControlWidget needs from the control logic it shows, so that one widget base serves
// every control: persistence through the control's own keys, its minimum size in twips, and the
// properties every control exposes.
class ControlBinding {
 public:
  virtual ~ControlBinding() = default;
  virtual void ReadProperties(const platform::PropertyBag& bag) = 0;
  virtual void WriteProperties(platform::PropertyBag& bag) const = 0;
  virtual int MinimumWidth() const = 0;
  virtual int MinimumHeight() const = 0;
  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor color) = 0;
  virtual bool BusinessMode() const = 0;
  virtual void SetBusinessMode(bool on) = 0;
  virtual OleColor BackColorTitle() const = 0;
  virtual void SetBackColorTitle(OleColor color) = 0;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  // The properties the control's child widgets hold, for change notification.
  virtual std::span<const platform::FieldValue> FieldValues() const = 0;
};

// The binding to any control class with those members.
template <class Control>
class BindingTo final : public ControlBinding {
 public:
  explicit BindingTo(Control& control) : c_(control) {}
  void ReadProperties(const platform::PropertyBag& bag) override { c_.ReadProperties(bag); }
  void WriteProperties(platform::PropertyBag& bag) const override { c_.WriteProperties(bag); }
  int MinimumWidth() const override { return c_.MinimumWidth(); }
  int MinimumHeight() const override { return c_.MinimumHeight(); }
  OleColor BackColor() const override { return c_.BackColor(); }
  void SetBackColor(OleColor color) override { c_.SetBackColor(color); }
  bool BusinessMode() const override { return c_.BusinessMode(); }
  void SetBusinessMode(bool on) override { c_.SetBusinessMode(on); }
  OleColor BackColorTitle() const override { return c_.BackColorTitle(); }
  void SetBackColorTitle(OleColor color) override { c_.SetBackColorTitle(color); }
  bool Enabled() const override { return c_.Enabled(); }
  void SetEnabled(bool enabled) override { c_.SetEnabled(enabled); }
  std::span<const platform::FieldValue> FieldValues() const override {
    if constexpr (requires { Control::FieldValues(); }) {
      return Control::FieldValues();
    } else {
      return {};
    }
  }

 private:
  Control& c_;
};

}  // namespace zenta::qt
