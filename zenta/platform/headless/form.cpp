#include "zenta/platform/headless/form.h"

#include <algorithm>
#include <ctime>
#include <deque>
#include <optional>
#include <stdexcept>
#include <vector>

#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
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
  // A shown dialog and the focus it took over, given back when it hides.
  struct Shown {
    Dialog* dialog;
    InputNode* focused;
    InputNode* gained;
  };

  std::vector<std::unique_ptr<Surface>> surfaces;
  std::vector<Shown> dialogs;
  std::deque<std::function<void(Dialog&)>> dialog_scripts;
  std::deque<std::function<void()>> posted;
  int posted_depth = 0;
  int posted_run = 0;
  std::vector<std::unique_ptr<TextBoxWidget>> host_fields;
  InputNode* focused = nullptr;
  InputNode* gained = nullptr;  // the node whose focus-gained ran and whose focus-lost is owed
  std::deque<platform::KeyDown> queue;
  bool draining = false;
  std::optional<Date> today;

  // Every widget of the window in creation order: each surface's children, then the host's fields.
  std::vector<InputNode*> AllNodes() const {
    std::vector<InputNode*> nodes;
    if (!dialogs.empty()) {
      for (const auto& node : dialogs.back().dialog->Nodes()) nodes.push_back(node.get());
      return nodes;
    }
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
  // Only the active window's widgets: the shown dialog's, or the form's while none is shown.
  const Dialog* active = impl_->dialogs.empty() ? nullptr : impl_->dialogs.back().dialog;
  if (node->dialog() != active) return false;
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

void Form::FocusableChanged() {
  InputNode* focused = impl_->focused;
  if (!focused || CanFocus(&focused->AsWidget())) return;
  MoveFocusInTabOrder(false);
  if (impl_->focused == focused) SetFocus(nullptr);
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
  if ((key.shift & platform::kAlt) != 0) {
    for (InputNode* candidate : impl_->AllNodes()) {
      auto* button = dynamic_cast<ButtonWidget*>(candidate);
      if (!button || button->Mnemonic() != static_cast<char32_t>(key.key_code) || !CanFocus(button)) continue;
      SetFocus(button);
      if (button->HasFocus()) button->Click();
      return false;
    }
  }
  if (impl_->focused) impl_->focused->HandleKeyDown(key);
  if (key.key_code == 0) return false;
  if (key.key_code == platform::keys::kEscape && !impl_->dialogs.empty()) {
    if (ButtonWidget* cancel = impl_->dialogs.back().dialog->CancelButton()) {
      cancel->Click();
      return false;
    }
  }
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

std::unique_ptr<Dialog> Form::CreateDialog(const std::string& name) { return std::make_unique<Dialog>(*this, name); }

void Form::ExpectDialog(std::function<void(Dialog&)> script) { impl_->dialog_scripts.push_back(std::move(script)); }

std::size_t Form::PendingDialogScripts() const { return impl_->dialog_scripts.size(); }

void Form::DialogShown(Dialog& dialog) {
  // The window that loses activation keeps its focused widget untold; it gets it back on hiding.
  impl_->dialogs.push_back({&dialog, impl_->focused, impl_->gained});
  impl_->focused = nullptr;
  impl_->gained = nullptr;
}

void Form::DialogHidden(Dialog& dialog) {
  auto found = std::find_if(impl_->dialogs.begin(), impl_->dialogs.end(),
                            [&](const Impl::Shown& shown) { return shown.dialog == &dialog; });
  if (found == impl_->dialogs.end()) return;
  const Impl::Shown shown = *found;
  const bool top = found + 1 == impl_->dialogs.end();
  impl_->dialogs.erase(found);
  if (!top) return;
  InputNode* old = impl_->focused;
  InputNode* old_gained = impl_->gained;
  impl_->focused = shown.focused;
  impl_->gained = shown.gained;
  if (old && old == old_gained && old->dialog() == &dialog) old->FocusLost();
}

void Form::PlayDialogScript(Dialog& dialog) {
  if (impl_->dialog_scripts.empty()) {
    throw UnexpectedDialog("unexpected dialog " + dialog.Name() + " titled \"" + dialog.Title() + "\"");
  }
  auto script = std::move(impl_->dialog_scripts.front());
  impl_->dialog_scripts.pop_front();
  script(dialog);
}

void Form::Post(std::function<void()> action) { impl_->posted.push_back(std::move(action)); }

void Form::RunPosted() {
  // Re-entered from a modal dialog's script: the inner loop runs what is posted meanwhile.
  if (impl_->posted_depth == 0) impl_->posted_run = 0;
  ++impl_->posted_depth;
  struct Leave {
    int& depth;
    ~Leave() { --depth; }
  } leave{impl_->posted_depth};
  while (!impl_->posted.empty()) {
    if (++impl_->posted_run > kQueueLimit) {
      impl_->posted.clear();
      throw std::logic_error("posted actions keep posting more: stopped after 1000");
    }
    auto action = std::move(impl_->posted.front());
    impl_->posted.pop_front();
    action();
  }
}

void Form::Settle() {
  for (int round = 0;; ++round) {
    if (round > kQueueLimit) throw std::logic_error("keys and posted actions keep queueing each other: stopped after 1000");
    ProcessQueuedKeys();
    if (impl_->posted.empty()) return;
    RunPosted();
  }
}

Date Form::Today() const { return impl_->today.value_or(SystemToday()); }
void Form::SetToday(Date today) { impl_->today = today; }

}  // namespace zenta::headless
