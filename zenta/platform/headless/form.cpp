#include "zenta/platform/headless/form.h"

#include <algorithm>
#include <ctime>
#include <deque>
#include <optional>
#include <stdexcept>
#include <vector>

#include "zenta/platform/headless/scoped_flag.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/key_script.h"

namespace zenta::headless {

namespace {
constexpr int kQueueLimit = 1000;

InputNode* NodeOf(const platform::Widget* widget) {
  return dynamic_cast<InputNode*>(const_cast<platform::Widget*>(widget));
}

Date SystemToday() {
  std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return Date::FromYmd(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday).value_or(Date());
}
}  // namespace

struct Form::Impl {
  std::vector<std::unique_ptr<Surface>> surfaces;
  std::vector<std::unique_ptr<TextBoxWidget>> host_fields;
  InputNode* focused = nullptr;
  InputNode* gained = nullptr;  // the node whose focus-gained ran and whose focus-lost is owed
  std::deque<platform::KeyDown> queue;
  bool draining = false;
  std::optional<Date> today;

  // Every widget of the window in creation order: each surface's children, then the host's fields.
  std::vector<InputNode*> AllNodes() const {
    std::vector<InputNode*> nodes;
    for (const auto& surface : surfaces) {
      for (const auto& node : surface->Nodes()) nodes.push_back(node.get());
    }
    for (const auto& field : host_fields) nodes.push_back(field.get());
    return nodes;
  }
};

Form::Form() : impl_(std::make_unique<Impl>()) {}
Form::~Form() {
  impl_->focused = nullptr;
  impl_->gained = nullptr;
}

Surface& Form::AddSurface(const std::string& name, int width_twips, int height_twips) {
  impl_->surfaces.push_back(std::make_unique<Surface>(*this, name, width_twips, height_twips));
  return *impl_->surfaces.back();
}

TextBoxWidget& Form::AddHostField(const std::string& name) {
  platform::WidgetSpec definition;
  definition.name = name;
  impl_->host_fields.push_back(std::make_unique<TextBoxWidget>(*this, nullptr, definition));
  return *impl_->host_fields.back();
}

TextBoxWidget* Form::FirstHostField() const {
  return impl_->host_fields.empty() ? nullptr : impl_->host_fields.front().get();
}

void Form::Show() {
  for (const auto& surface : impl_->surfaces) surface->NotifyShown();
}

platform::Widget* Form::Focused() const { return impl_->focused ? &impl_->focused->AsWidget() : nullptr; }

bool Form::CanFocus(const platform::Widget* widget) const {
  InputNode* node = NodeOf(widget);
  if (!node || !node->Focusable() || !widget->Enabled() || !widget->Visible()) return false;
  return !node->surface() || node->surface()->Enabled();
}

void Form::SetFocus(platform::Widget* widget) {
  InputNode* target = widget ? NodeOf(widget) : nullptr;
  if (widget && !CanFocus(widget)) return;
  if (target == impl_->focused) return;
  InputNode* old = impl_->focused;
  impl_->focused = target;
  if (old && old == impl_->gained) {
    impl_->gained = nullptr;
    old->FocusLost();
  }
  // A focus-lost handler may have moved the focus on; then that move has run its own gain.
  if (target && impl_->focused == target && impl_->gained != target) {
    impl_->gained = target;
    target->FocusGained();
  }
}

void Form::QueueKeys(const std::string& keys) {
  for (const platform::KeyDown& key : platform::ParseKeyScript(keys)) impl_->queue.push_back(key);
}

void Form::ProcessQueuedKeys() {
  // A handler that runs queued keys itself leaves the rest to the loop already running.
  if (impl_->draining) return;
  ScopedFlag inside(impl_->draining);
  int delivered = 0;
  while (!impl_->queue.empty()) {
    if (++delivered > kQueueLimit) {
      impl_->queue.clear();
      throw std::logic_error("injected keystrokes keep injecting more: stopped after 1000");
    }
    platform::KeyDown key = impl_->queue.front();
    impl_->queue.pop_front();
    DeliverKeyDown(key);
  }
}

bool Form::DeliverKeyDown(platform::KeyDown key) {
  InputNode* node = impl_->focused;
  if (node && node->surface()) node->surface()->PreviewKeyDown(key);
  if (key.key_code == 0) return false;
  if (impl_->focused) impl_->focused->HandleKeyDown(key);
  if (key.key_code == 0) return false;
  if (key.key_code == platform::keys::kTab) {
    MoveFocusInTabOrder((key.shift & platform::kShift) != 0);
    return false;
  }
  if (key.key_code == platform::keys::kEnter && impl_->focused) impl_->focused->HandleCharacter(U'\r');
  return true;
}

void Form::DeliverCharacter(char32_t character) {
  if (impl_->focused) impl_->focused->HandleCharacter(character);
}

void Form::MoveFocusInTabOrder(bool backward) {
  // Searched from the focused widget's place in creation order, so that Tab from a widget
  // without a tab stop (a clicked one, a grid's cell editor) goes on from where it sits.
  const std::vector<InputNode*> nodes = impl_->AllNodes();
  const auto count = static_cast<std::ptrdiff_t>(nodes.size());
  auto found = std::find(nodes.begin(), nodes.end(), impl_->focused);
  std::ptrdiff_t at = found != nodes.end() ? found - nodes.begin() : backward ? count : -1;
  for (std::ptrdiff_t step = 1; step <= count; ++step) {
    std::ptrdiff_t index = (((backward ? at - step : at + step) % count) + count) % count;
    InputNode* node = nodes[static_cast<std::size_t>(index)];
    if (node->tab_stop() && CanFocus(&node->AsWidget())) {
      SetFocus(&node->AsWidget());
      return;
    }
  }
}

Date Form::Today() const { return impl_->today.value_or(SystemToday()); }
void Form::SetToday(Date today) { impl_->today = today; }

}  // namespace zenta::headless
