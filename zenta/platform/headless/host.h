#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "zenta/platform/host_services.h"

namespace zenta::headless {

class Form;

// Raised when a control shows a message box that the test or host script did not expect: a
// failing assertion rather than a hang.
class UnexpectedMessageBox : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

// Host services in memory, for one control on a Form. It records what the control asked of
// the host — raised events (number, name, arguments after the handler ran), message boxes,
// injected keystrokes, properties marked changed, beeps — and answers message boxes from a queue the
// caller fills.
class Host : public platform::HostServices {
 public:
  explicit Host(Form& form) : form_(form) {}

  void MarkPropertyChanged(const std::string& name) override { changed_.push_back(name); }
  void ValueChanged(std::string_view property) override {
    if (on_value_changed_) on_value_changed_(property);
  }
  void InjectKeys(const std::string& keys) override;
  void RaiseEvent(platform::RaisedEvent& event) override;
  void ReportError(const HostError& error) override { errors_.push_back(error); }
  platform::MessageResult ShowMessage(const platform::MessageBox& box) override;
  // Queues on the Form: run after the user's action, or by Form::RunPosted().
  void Post(std::function<void()> action) override;
  void Beep() override { ++beeps_; }
  platform::ContainerMetrics Container() const override { return container_; }
  Date Today() const override;
  char32_t DecimalSeparator() const override { return separator_; }
  std::string ShortDatePattern() const override { return short_date_; }
  // An in-memory clipboard the test fills and reads.
  std::string ClipboardText() const override { return clipboard_; }
  void SetClipboardText(const std::string& text) override { clipboard_ = text; }
  void SetShortDatePattern(std::string pattern) { short_date_ = std::move(pattern); }

  int Beeps() const { return beeps_; }
  void SetContainer(const platform::ContainerMetrics& metrics) { container_ = metrics; }

  // The next message box is answered with `answer`; boxes are answered in order.
  void ExpectMessage(platform::MessageResult answer) { answers_.push_back(answer); }
  const std::vector<platform::MessageBox>& MessagesShown() const { return messages_; }
  std::size_t PendingAnswers() const { return answers_.size(); }

  // Runs for each event before it is recorded; it may change in/out arguments.
  void OnEvent(std::function<void(platform::RaisedEvent&)> handler) { on_event_ = std::move(handler); }
  const std::vector<platform::RaisedEvent>& Events() const { return events_; }
  std::vector<std::string> EventNames() const;
  void ClearEvents() { events_.clear(); }

  // Every error reported with no caller to raise it to, in order.
  const std::vector<HostError>& ReportedErrors() const { return errors_; }

  const std::vector<std::string>& ChangedProperties() const { return changed_; }
  // Called with each property whose value the control says may have changed, typed or set.
  void OnValueChanged(std::function<void(std::string_view)> listener) { on_value_changed_ = std::move(listener); }
  // Every keystroke script the control injected, in order ("{TAB}").
  const std::vector<std::string>& InjectedKeys() const { return injected_; }

  // Sets today for the whole form (default: the system clock's date).
  void SetToday(Date today);
  void SetDecimalSeparator(char32_t separator) { separator_ = separator; }

 private:
  Form& form_;
  std::deque<platform::MessageResult> answers_;
  std::vector<platform::MessageBox> messages_;
  std::function<void(platform::RaisedEvent&)> on_event_;
  std::vector<platform::RaisedEvent> events_;
  std::vector<HostError> errors_;
  std::vector<std::string> changed_;
  std::function<void(std::string_view)> on_value_changed_;
  std::vector<std::string> injected_;
  char32_t separator_ = U'.';
  std::string short_date_ = "yyyy-MM-dd";
  std::string clipboard_;
  int beeps_ = 0;
  platform::ContainerMetrics container_;
};

}  // namespace zenta::headless
