#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <optional>
#include <vector>

#include "zenta/platform/control_surface.h"
#include "zenta/qt/toolkit/twips_layout.h"

namespace zenta::qt {

// A control's area as a QWidget. It creates the control's children at their twips rectangles
// (twips become pixels through the screen's logical DPI) and chains them in tab order in the
// order created; it previews every key they receive before they do, reports the focused child
// as the active one, and paints its background in the control's OLE colour (a system colour
// follows the palette). It takes the host's font: the rectangles were drawn for an 8-point dialog
// font, so a larger font scales the layout by its letter width and line height, a wider surface
// stretches the fields across it, and a caption always gets the width its text needs.
class QtSurface : public QWidget, public platform::ControlSurface, public TwipsContainer {
 public:
  explicit QtSurface(QWidget* parent = nullptr);
  ~QtSurface() override;

  platform::NumberEdit& AddNumberEdit(const platform::WidgetSpec& definition) override;
  platform::DateEdit& AddDateEdit(const platform::WidgetSpec& definition) override;
  platform::TextBox& AddTextBox(const platform::WidgetSpec& definition) override;
  platform::CheckBox& AddCheckBox(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Label& AddLabel(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Grid& AddGrid(const platform::WidgetSpec& definition, int column_count) override;

  std::vector<platform::Widget*> Children() const override { return children_; }
  platform::Widget* ActiveChild() const override;

  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override;
  // The control's own state: a host disabling the window around it does not change it.
  bool Enabled() const override { return !testAttribute(Qt::WA_ForceDisabled); }
  void SetEnabled(bool enabled) override { setEnabled(enabled); }
  int Width() const override { return ToTwips(width(), Qt::Horizontal); }
  int Height() const override { return ToTwips(height(), Qt::Vertical); }
  void SetWidth(int twips) override;
  void SetHeight(int twips) override;
  bool UserMode() const override { return user_mode_; }

  void OnKeyDown(std::function<void(platform::KeyDown&)> handler) override { on_key_down_ = std::move(handler); }
  void OnResize(platform::Callback callback) override { on_resize_ = std::move(callback); }
  void OnShown(platform::Callback callback) override { on_shown_ = std::move(callback); }

  // False while a form designer hosts the control.
  void SetUserMode(bool user_mode) { user_mode_ = user_mode; }
  platform::Widget* Find(const std::string& name) const;
  QWidget* FindQWidget(const std::string& name) const;
  // px = twips * logical DPI / 1440, along either axis.
  int ToPixels(int twips, Qt::Orientation axis = Qt::Horizontal) const;
  int ToTwips(int pixels, Qt::Orientation axis = Qt::Horizontal) const;
  // A size in twips of the drawn layout, in pixels at the current font, and wide enough for
  // every caption.
  QSize FittedSize(int width_twips, int height_twips) const;
  // The size the control asked for (SetWidth, SetHeight), in twips; 0 when it never asked.
  int RequestedWidth() const { return requested_width_; }
  int RequestedHeight() const { return requested_height_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  template <class W>
  W& Register(W* widget, const platform::WidgetSpec& definition, QWidget& focus_target);
  void Track(platform::Widget& widget, QWidget& qwidget, const std::string& name);
  QRect PixelRect(const platform::TwipsRect& rect) const;
  double FontScale(Qt::Orientation axis) const;
  void Relayout() override;
  void PairCaptions();

  std::vector<platform::Widget*> children_;
  std::map<const QWidget*, platform::Widget*> by_qwidget_;
  std::map<std::string, QWidget*> qwidget_by_name_;
  QPointer<QWidget> last_tab_stop_;
  OleColor back_color_ = colors::kButtonFace;
  bool user_mode_ = true;
  bool shown_once_ = false;
  int caption_width_ = 0;
  int requested_width_ = 0;
  int requested_height_ = 0;
  std::function<void(platform::KeyDown&)> on_key_down_;
  platform::Callback on_resize_;
  platform::Callback on_shown_;
};

}  // namespace zenta::qt
