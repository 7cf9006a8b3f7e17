#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "zenta/platform/host_services.h"

namespace zenta::qt {

// Host services for a control on a Qt form. Message boxes show the control's exact title and
// text as plain text, modal over the owner's window. Injected keystrokes are queued behind the
// handler that injects them and each goes to whichever widget has the focus when its turn
// comes, as typed keys would. Events and property changes go to sinks the owning widget
// installs; today comes from the system clock, and the decimal separator from the current
// QLocale each time it is asked.
class QtHost : public platform::HostServices {
 public:
  explicit QtHost(QWidget& owner) : owner_(&owner) {}

  void MarkPropertyChanged(const std::string& name) override;
  void ValueChanged(std::string_view property) override;
  void InjectKeys(const std::string& keys) override;
  void RaiseEvent(platform::RaisedEvent& event) override;
  void ReportError(const HostError& error) override;
  platform::MessageResult ShowMessage(const platform::MessageBox& box) override;
  Date Today() const override;
  char32_t DecimalSeparator() const override;
  std::string ShortDatePattern() const override;
  std::string ClipboardText() const override;
  void SetClipboardText(const std::string& text) override;
  // A queued call on the owner: it runs once the event being handled has returned.
  void Post(std::function<void()> action) override;
  void Beep() override;
  // From the owner's geometry and its window's: a window's outer size less its inner size is
  // the frame allowance a dialog placed beside the control needs.
  platform::ContainerMetrics Container() const override;

  // The window message boxes are modal over, and whose geometry Container() reports.
  void SetOwner(QWidget& owner) { owner_ = &owner; }
  void SetEventSink(std::function<void(platform::RaisedEvent&)> sink) { event_sink_ = std::move(sink); }
  void SetErrorSink(std::function<void(const HostError&)> sink) { error_sink_ = std::move(sink); }
  void SetPropertyChangedSink(std::function<void(const std::string&)> sink) { changed_sink_ = std::move(sink); }
  void SetValueChangedSink(std::function<void(std::string_view)> sink) { value_sink_ = std::move(sink); }

 private:
  QPointer<QWidget> owner_;
  std::function<void(platform::RaisedEvent&)> event_sink_;
  std::function<void(const HostError&)> error_sink_;
  std::function<void(const std::string&)> changed_sink_;
  std::function<void(std::string_view)> value_sink_;
};

}  // namespace zenta::qt
