#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "zenta/platform/widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

// Twips (1/1440 inch) and pixels at a logical DPI.
inline int ToTwipsAlong(int pixels, int dpi) { return dpi > 0 ? pixels * 1440 / dpi : pixels * 15; }
inline int ToPixelsAlong(int twips, int dpi) { return dpi > 0 ? twips * dpi / 1440 : twips / 15; }

// A child of a control surface is placed through the surface, which keeps the twips rectangle
// and scales it with the font; these return false / nullopt for any other widget.
bool PlaceOnSurface(QWidget& widget, const platform::TwipsRect& rect);
std::optional<platform::TwipsRect> RectOnSurface(const QWidget& widget);

// The platform::Widget members every Qt adapter answers the same way from its QWidget. The
// enabled state is the widget's own, not inherited from a disabled control.
template <class Interface>
class QtWidgetBase : public Interface {
 public:
  explicit QtWidgetBase(QWidget& widget, const platform::WidgetSpec& definition) : widget_(widget), name_(definition.name) {
    widget_.setObjectName(ToQString(definition.name));
    if (!definition.tooltip.empty()) widget_.setToolTip(UiText(definition.tooltip));
  }

  const std::string& Name() const override { return name_; }
  bool Enabled() const override { return widget_.parentWidget() ? widget_.isEnabledTo(widget_.parentWidget()) : widget_.isEnabled(); }
  void SetEnabled(bool enabled) override { widget_.setEnabled(enabled); }
  bool Visible() const override { return !widget_.isHidden(); }
  void SetVisible(bool visible) override { widget_.setVisible(visible); }
  void SetFocus() override {
    if (Enabled() && Visible()) FocusTarget().setFocus(Qt::OtherFocusReason);
  }
  bool HasFocus() const override { return const_cast<QtWidgetBase*>(this)->FocusTarget().hasFocus(); }
  platform::TwipsRect Rect() const override {
    if (std::optional<platform::TwipsRect> placed = RectOnSurface(widget_)) return *placed;
    const QRect g = widget_.geometry();
    return {ToTwipsAlong(g.x(), widget_.logicalDpiX()), ToTwipsAlong(g.y(), widget_.logicalDpiY()),
            ToTwipsAlong(g.width(), widget_.logicalDpiX()), ToTwipsAlong(g.height(), widget_.logicalDpiY())};
  }
  void SetRect(const platform::TwipsRect& rect) override {
    if (PlaceOnSurface(widget_, rect)) return;
    widget_.setGeometry(ToPixelsAlong(rect.left, widget_.logicalDpiX()), ToPixelsAlong(rect.top, widget_.logicalDpiY()),
                        ToPixelsAlong(rect.width, widget_.logicalDpiX()), ToPixelsAlong(rect.height, widget_.logicalDpiY()));
  }

 protected:
  // The widget that really takes the focus (a composite's inner editor).
  virtual QWidget& FocusTarget() { return widget_; }

 private:
  QWidget& widget_;
  std::string name_;
};

// Focus changes Qt reports that are not the user leaving a field: a message box or popup
// opening, or the window losing activation.
inline bool IsTransientFocusChange(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

}  // namespace zenta::qt
