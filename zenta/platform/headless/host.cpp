#include "zenta/platform/headless/host.h"

#include "zenta/platform/headless/form.h"

namespace zenta::headless {

void Host::InjectKeys(const std::string& keys) {
  form_.QueueKeys(keys);
  injected_.push_back(keys);
}

void Host::Post(std::function<void()> action) { form_.Post(std::move(action)); }

void Host::RaiseEvent(platform::RaisedEvent& event) {
  if (on_event_) on_event_(event);
  events_.push_back(event);
}

platform::MessageResult Host::ShowMessage(const platform::MessageBox& box) {
  messages_.push_back(box);
  if (answers_.empty()) {
    throw UnexpectedMessageBox("unexpected message box \"" + box.text + "\" titled \"" + box.title + "\"");
  }
  platform::MessageResult answer = answers_.front();
  answers_.pop_front();
  return answer;
}

Date Host::Today() const { return form_.Today(); }
void Host::SetToday(Date today) { form_.SetToday(today); }

std::vector<std::string> Host::EventNames() const {
  std::vector<std::string> names;
  names.reserve(events_.size());
  for (const auto& event : events_) names.push_back(event.name);
  return names;
}

}  // namespace zenta::headless
