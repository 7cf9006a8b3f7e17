#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "zenta/platform/host_services.h"

namespace zenta::qt {

// Host services for a control on a Qt form: message boxes with the control's exact texts,
// keystrokes delivered to the focused widget after the current handler returns, events and
// property changes handed to sinks the owning widget installs, today from the system clock and
// the decimal separator from the current QLocale.
class QtHost : public platform::HostServices {
 public:
  explicit QtHost(QWidget& owner) : owner_(&owner) {}

  void MarkPropertyChanged(const std::string& name) override;
  void InjectKeys(const std::string& keys) override;
  void RaiseEvent(platform::RaisedEvent& event) override;
  platform::MessageResult ShowMessage(const platform::MessageBox& box) override;
  Date Today() const override;
  char32_t DecimalSeparator() const override;

  void SetEventSink(std::function<void(platform::RaisedEvent&)> sink) { event_sink_ = std::move(sink); }
  void SetPropertyChangedSink(std::function<void(const std::string&)> sink) { changed_sink_ = std::move(sink); }

 private:
  QPointer<QWidget> owner_;
  std::function<void(platform::RaisedEvent&)> event_sink_;
  std::function<void(const std::string&)> changed_sink_;
};

}  // namespace zenta::qt
