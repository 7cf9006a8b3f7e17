#include "zenta/platform/headless/dialog.h"

#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/decoration_widget.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/label_widget.h"
#include "zenta/platform/headless/text_box_widget.h"

namespace zenta::headless {

Dialog::Dialog(Form& form, std::string name) : form_(form), name_(std::move(name)) {}

Dialog::~Dialog() {
  if (shown_) form_.DialogHidden(*this);
}

template <class W, class... Args>
W& Dialog::Add(Args&&... args) {
  auto widget = std::make_unique<W>(form_, nullptr, std::forward<Args>(args)...);
  widget->AttachToDialog(this);
  W& ref = *widget;
  nodes_.push_back(std::move(widget));
  return ref;
}

platform::Grid& Dialog::AddGrid(const platform::WidgetSpec& definition, int column_count) {
  return Add<GridWidget>(definition, column_count);
}
platform::TextBox& Dialog::AddTextBox(const platform::WidgetSpec& definition) { return Add<TextBoxWidget>(definition); }
platform::Button& Dialog::AddButton(const platform::WidgetSpec& definition, const std::string& caption) {
  return Add<ButtonWidget>(definition, caption);
}
platform::Label& Dialog::AddLabel(const platform::WidgetSpec& definition, const std::string& caption) {
  platform::WidgetSpec label = definition;
  label.tab_stop = false;
  return Add<LabelWidget>(label, caption);
}
platform::Widget& Dialog::AddFrame(const platform::WidgetSpec& definition, const std::string& caption) {
  platform::WidgetSpec frame = definition;
  frame.tab_stop = false;
  return Add<DecorationWidget>(frame, caption);
}
platform::Widget& Dialog::AddShape(const platform::WidgetSpec& definition) {
  platform::WidgetSpec shape = definition;
  shape.tab_stop = false;
  return Add<DecorationWidget>(shape, std::string());
}

void Dialog::SetCancelButton(platform::Button& button) {
  auto* own = dynamic_cast<ButtonWidget*>(&button);
  if (!own || own->dialog() != this) throw std::logic_error("the cancel button of " + name_ + " must be one of its own");
  cancel_ = own;
}

void Dialog::ShowModal() {
  if (shown_) throw std::logic_error(name_ + " is already shown");
  shown_ = true;
  form_.DialogShown(*this);
  try {
    for (const auto& node : nodes_) {
      if (node->tab_stop() && form_.CanFocus(&node->AsWidget())) {
        form_.SetFocus(&node->AsWidget());
        break;
      }
    }
    if (on_activate_) on_activate_();
    form_.PlayDialogScript(*this);
  } catch (...) {
    Hide();
    throw;
  }
  if (shown_) {
    Hide();
    throw std::logic_error("the script for " + name_ + " left the dialog open");
  }
}

void Dialog::Hide() {
  if (!shown_) return;
  shown_ = false;
  form_.DialogHidden(*this);
}

std::vector<platform::Widget*> Dialog::Children() const {
  std::vector<platform::Widget*> children;
  children.reserve(nodes_.size());
  for (const auto& node : nodes_) children.push_back(&node->AsWidget());
  return children;
}

platform::Widget* Dialog::ActiveChild() const {
  platform::Widget* focused = form_.Focused();
  for (const auto& node : nodes_) {
    if (&node->AsWidget() == focused) return focused;
  }
  return nullptr;
}

bool Dialog::CanFocus(const platform::Widget& widget) const { return form_.CanFocus(&widget); }

}  // namespace zenta::headless
