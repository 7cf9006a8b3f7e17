#pragma once

#include <QWidget>
#include <map>
#include <vector>

#include "zenta/platform/control_surface.h"

namespace zenta::qt {

// A control's area as a QWidget. It creates the control's children at their twips rectangles
// (through the screen's logical DPI), in tab order, previews every key they receive before
// they do, and reports the focused child as the active one.
class QtSurface : public QWidget, public platform::ControlSurface {
 public:
  explicit QtSurface(QWidget* parent = nullptr);
  ~QtSurface() override;

  platform::NumberEdit& AddNumberEdit(const platform::WidgetSpec& definition) override;
  platform::DateEdit& AddDateEdit(const platform::WidgetSpec& definition) override;
  platform::TextBox& AddTextBox(const platform::WidgetSpec& definition) override;
  platform::CheckBox& AddCheckBox(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Label& AddLabel(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Grid& AddGrid(const platform::WidgetSpec& definition, int column_count) override;
  platform::NumberEdit& AddGridEditor(const platform::WidgetSpec& definition, platform::Grid& grid, int column) override;

  std::vector<platform::Widget*> Children() const override { return children_; }
  platform::Widget* ActiveChild() const override;

  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override;
  // The control's own state: a host disabling the window around it does not change it.
  bool Enabled() const override { return !testAttribute(Qt::WA_ForceDisabled); }
  void SetEnabled(bool enabled) override { setEnabled(enabled); }
  int Width() const override { return ToTwips(width()); }
  int Height() const override { return ToTwips(height()); }
  void SetWidth(int twips) override { resize(ToPixels(twips), height()); }
  void SetHeight(int twips) override { resize(width(), ToPixels(twips)); }
  bool UserMode() const override { return user_mode_; }

  void OnKeyDown(std::function<void(platform::KeyDown&)> handler) override { on_key_down_ = std::move(handler); }
  void OnResize(platform::Callback callback) override { on_resize_ = std::move(callback); }
  void OnShown(platform::Callback callback) override { on_shown_ = std::move(callback); }

  void SetUserMode(bool user_mode) { user_mode_ = user_mode; }
  platform::Widget* Find(const std::string& name) const;
  QWidget* FindQWidget(const std::string& name) const;
  int ToPixels(int twips) const;
  int ToTwips(int pixels) const;
  double PixelsPerTwip() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  template <class W>
  W& Register(W* widget, const platform::WidgetSpec& definition, QWidget& focus_target);
  QRect PixelRect(const platform::TwipsRect& rect) const;

  std::vector<platform::Widget*> children_;
  std::map<const QWidget*, platform::Widget*> by_qwidget_;
  std::map<std::string, QWidget*> qwidget_by_name_;
  OleColor back_color_ = colors::kButtonFace;
  bool user_mode_ = true;
  bool shown_once_ = false;
  std::function<void(platform::KeyDown&)> on_key_down_;
  platform::Callback on_resize_;
  platform::Callback on_shown_;
};

}  // namespace zenta::qt
