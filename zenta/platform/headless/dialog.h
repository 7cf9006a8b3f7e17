#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "zenta/platform/dialog_surface.h"
#include "zenta/platform/headless/child_lookup.h"
#include "zenta/platform/headless/input_node.h"

namespace zenta::headless {

class ButtonWidget;
class Form;

// Raised when a dialog is shown modally and no script was queued with Form::ExpectDialog: a
// failing test rather than a hang.
class UnexpectedDialog : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

// A modal window in memory, made by Form::CreateDialog. While it is shown the Form's focus and
// Tab order stay inside it. ShowModal() focuses its first tab stop, runs the activation
// notification, then plays the next script queued with Form::ExpectDialog — what a person does
// in the window, through User — and returns once the window is hidden. Escape clicks the
// cancel button. The widget that had the focus before gets it back on hiding, without a
// focus-lost or focus-gained of its own: a window's activation is not the user leaving a field.
class Dialog : public platform::DialogSurface {
 public:
  Dialog(Form& form, std::string name);
  ~Dialog() override;
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  platform::Grid& AddGrid(const platform::WidgetSpec& definition, int column_count) override;
  platform::TextBox& AddTextBox(const platform::WidgetSpec& definition) override;
  platform::Button& AddButton(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Label& AddLabel(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Widget& AddFrame(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Widget& AddShape(const platform::WidgetSpec& definition) override;

  void SetCancelButton(platform::Button& button) override;
  void SetTitle(const std::string& title) override { title_ = title; }
  const std::string& Title() const { return title_; }

  platform::TwipsRect Rect() const override { return rect_; }
  void SetRect(const platform::TwipsRect& rect) override { rect_ = rect; }

  void ShowModal() override;
  void Hide() override;
  bool IsShown() const override { return shown_; }
  void OnActivate(platform::Callback callback) override { on_activate_ = std::move(callback); }

  std::vector<platform::Widget*> Children() const override;
  platform::Widget* ActiveChild() const override;
  bool CanFocus(const platform::Widget& widget) const override;

  const std::string& Name() const { return name_; }
  platform::Widget* Find(const std::string& name) const { return ChildLookup(nodes_, name_).Find(name); }
  template <class T>
  T& Get(const std::string& name) const {
    return ChildLookup(nodes_, name_).Get<T>(name);
  }

  // Used by the Form.
  const std::vector<std::unique_ptr<InputNode>>& Nodes() const { return nodes_; }
  ButtonWidget* CancelButton() const { return cancel_; }

 private:
  template <class W, class... Args>
  W& Add(Args&&... args);

  Form& form_;
  std::string name_;
  std::string title_;
  platform::TwipsRect rect_;
  std::vector<std::unique_ptr<InputNode>> nodes_;
  ButtonWidget* cancel_ = nullptr;
  bool shown_ = false;
  platform::Callback on_activate_;
};

}  // namespace zenta::headless
