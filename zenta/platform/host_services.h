#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "zenta/core/date.h"
#include "zenta/core/host_error.h"
#include "zenta/platform/container_metrics.h"
#include "zenta/platform/message_box.h"
#include "zenta/platform/raised_event.h"

namespace zenta::platform {

// What a control asks of the application that hosts it.
class HostServices {
 public:
  virtual ~HostServices() = default;

  // Tells the host that a persisted property changed at run time.
  virtual void MarkPropertyChanged(const std::string& name) = 0;
  // The value `property` reads may have changed, typed or set: a toolkit turns it into its
  // change notification instead of polling every property. Said at most a few times a change,
  // so a host may compare the value with the last one it saw.
  virtual void ValueChanged(std::string_view property) { (void)property; }
  // Queues keystrokes ("{TAB}") behind the notification being handled; returns at once.
  virtual void InjectKeys(const std::string& keys) = 0;
  virtual void RaiseEvent(RaisedEvent& event) = 0;
  // A refusal with no caller to raise it to (a posted refresh, a keystroke): the values stayed
  // as they were, and the host hears of it here.
  virtual void ReportError(const HostError& error) = 0;
  virtual MessageResult ShowMessage(const MessageBox& box) = 0;

  // Runs `action` after the notification being handled has returned, in the order posted.
  virtual void Post(std::function<void()> action) = 0;
  // The sound of a refused key.
  virtual void Beep() = 0;
  // Where the control sits on the host's screen, for placing a window next to it.
  virtual ContainerMetrics Container() const = 0;

  // Seams that make behaviour reproducible.
  virtual Date Today() const = 0;
  // Asked afresh on every use: the host's locale may change while it runs.
  virtual char32_t DecimalSeparator() const = 0;
  // The host locale's short date pattern ("d", "M", "y" runs and separators, as "M/d/yy").
  virtual std::string ShortDatePattern() const { return "yyyy-MM-dd"; }

  // The system clipboard's plain text (UTF-8), for copy and paste.
  virtual std::string ClipboardText() const { return {}; }
  virtual void SetClipboardText(const std::string& text) { (void)text; }
};

}  // namespace zenta::platform
