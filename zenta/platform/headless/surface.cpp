#include "zenta/platform/headless/surface.h"

#include <stdexcept>

#include "zenta/platform/headless/check_box_widget.h"
#include "zenta/platform/headless/date_edit_widget.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/label_widget.h"
#include "zenta/platform/headless/number_edit_widget.h"
#include "zenta/platform/headless/scoped_flag.h"
#include "zenta/platform/headless/text_box_widget.h"

namespace zenta::headless {

namespace {
constexpr int kResizeRounds = 100;
}  // namespace

Surface::Surface(Form& form, std::string name, int width_twips, int height_twips)
    : form_(form), name_(std::move(name)), width_(width_twips), height_(height_twips) {}

Surface::~Surface() = default;

template <class W, class... Args>
W& Surface::Add(Args&&... args) {
  auto widget = std::make_unique<W>(form_, this, std::forward<Args>(args)...);
  W& ref = *widget;
  nodes_.push_back(std::move(widget));
  return ref;
}

platform::NumberEdit& Surface::AddNumberEdit(const platform::WidgetSpec& definition) { return Add<NumberEditWidget>(definition); }
platform::DateEdit& Surface::AddDateEdit(const platform::WidgetSpec& definition) { return Add<DateEditWidget>(definition); }
platform::TextBox& Surface::AddTextBox(const platform::WidgetSpec& definition) { return Add<TextBoxWidget>(definition); }
platform::CheckBox& Surface::AddCheckBox(const platform::WidgetSpec& definition, const std::string& caption) {
  return Add<CheckBoxWidget>(definition, caption);
}
platform::Label& Surface::AddLabel(const platform::WidgetSpec& definition, const std::string& caption) {
  platform::WidgetSpec label = definition;
  label.tab_stop = false;
  return Add<LabelWidget>(label, caption);
}
platform::Grid& Surface::AddGrid(const platform::WidgetSpec& definition, int column_count) {
  return Add<GridWidget>(definition, column_count);
}

std::vector<platform::Widget*> Surface::Children() const {
  std::vector<platform::Widget*> children;
  children.reserve(nodes_.size());
  for (const auto& node : nodes_) children.push_back(&node->AsWidget());
  return children;
}

platform::Widget* Surface::ActiveChild() const {
  platform::Widget* focused = form_.Focused();
  for (const auto& node : nodes_) {
    if (&node->AsWidget() == focused) return focused;
  }
  return nullptr;
}

void Surface::SetWidth(int twips) { SetSize(twips, height_); }
void Surface::SetHeight(int twips) { SetSize(width_, twips); }

void Surface::SetSize(int width_twips, int height_twips) {
  if (width_twips == width_ && height_twips == height_) return;
  width_ = width_twips;
  height_ = height_twips;
  // A resize handler that sizes the control again (to its minimum, say) is told once it has
  // returned, not from inside itself; one that never settles is a bug worth an error.
  if (resizing_) {
    resized_again_ = true;
    return;
  }
  ScopedFlag inside(resizing_);
  for (int round = 0; on_resize_; ++round) {
    if (round == kResizeRounds) throw std::logic_error("resize handler of " + name_ + " keeps resizing");
    resized_again_ = false;
    on_resize_();
    if (!resized_again_) break;
  }
}

void Surface::SetEnabled(bool enabled) {
  enabled_ = enabled;
  if (!enabled) form_.FocusableChanged();
}

void Surface::PreviewKeyDown(platform::KeyDown& key) {
  if (on_key_down_) on_key_down_(key);
}

void Surface::NotifyShown() {
  if (on_shown_) on_shown_();
}

}  // namespace zenta::headless
