#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "zenta/platform/control_surface.h"
#include "zenta/platform/headless/child_lookup.h"
#include "zenta/platform/headless/input_node.h"

namespace zenta::headless {

class Form;

// One control's area on a headless Form. It creates and owns the control's children, answers
// the active child from the Form's focus, and previews every key before the focused child.
class Surface : public platform::ControlSurface {
 public:
  Surface(Form& form, std::string name, int width_twips, int height_twips);
  ~Surface() override;

  platform::NumberEdit& AddNumberEdit(const platform::WidgetSpec& definition) override;
  platform::DateEdit& AddDateEdit(const platform::WidgetSpec& definition) override;
  platform::TextBox& AddTextBox(const platform::WidgetSpec& definition) override;
  platform::CheckBox& AddCheckBox(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Label& AddLabel(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Grid& AddGrid(const platform::WidgetSpec& definition, int column_count) override;

  std::vector<platform::Widget*> Children() const override;
  platform::Widget* ActiveChild() const override;

  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override { back_color_ = color; }
  bool Enabled() const override { return enabled_; }
  void SetEnabled(bool enabled) override;
  int Width() const override { return width_; }
  int Height() const override { return height_; }
  void SetWidth(int twips) override;
  void SetHeight(int twips) override;
  bool UserMode() const override { return user_mode_; }

  void OnKeyDown(std::function<void(platform::KeyDown&)> handler) override { on_key_down_ = std::move(handler); }
  void OnResize(platform::Callback callback) override { on_resize_ = std::move(callback); }
  void OnShown(platform::Callback callback) override { on_shown_ = std::move(callback); }

  const std::string& Name() const { return name_; }
  void SetUserMode(bool user_mode) { user_mode_ = user_mode; }
  // As the host resizing the control: one resize notification when the size changes.
  void SetSize(int width_twips, int height_twips);

  platform::Widget* Find(const std::string& name) const { return ChildLookup(nodes_, name_).Find(name); }
  template <class T>
  T& Get(const std::string& name) const {
    return ChildLookup(nodes_, name_).Get<T>(name);
  }

  // Used by the Form.
  void PreviewKeyDown(platform::KeyDown& key);
  void NotifyShown();
  const std::vector<std::unique_ptr<InputNode>>& Nodes() const { return nodes_; }

 private:
  template <class W, class... Args>
  W& Add(Args&&... args);

  Form& form_;
  std::string name_;
  std::vector<std::unique_ptr<InputNode>> nodes_;
  OleColor back_color_ = 0x8000000Fu;
  bool enabled_ = true;
  bool user_mode_ = true;
  int width_;
  int height_;
  bool resizing_ = false;
  bool resized_again_ = false;
  std::function<void(platform::KeyDown&)> on_key_down_;
  platform::Callback on_resize_;
  platform::Callback on_shown_;
};

}  // namespace zenta::headless
