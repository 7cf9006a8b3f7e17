#pragma once

#include <QPointer>
#include <QWidget>
#include <optional>
#include <utility>
#include <vector>

#include "zenta/platform/widget.h"

namespace zenta::qt {

// How much larger than the 8-point dialog font the layouts were drawn for a widget's font is,
// along either axis (letter width or line height); never below 1.
double FontScale(const QWidget& widget, Qt::Orientation axis);

// px = twips * logical DPI / 1440 along either axis of `widget`'s screen, and back.
int TwipsToPixels(const QWidget& widget, int twips, Qt::Orientation axis);
int PixelsToTwips(const QWidget& widget, int pixels, Qt::Orientation axis);

// A window whose children sit at twips rectangles it scales to its font: a control's surface or
// a dialog. A child placed anew keeps its new rectangle through every later relayout.
class TwipsContainer {
 public:
  virtual ~TwipsContainer() = default;
  void Place(QWidget& child, const platform::TwipsRect& rect);
  std::optional<platform::TwipsRect> PlacedRect(const QWidget& child) const;
  // Lays the children out again; a child whose room needs changed (a grid's columns) asks.
  virtual void Relayout() = 0;

 protected:
  using Placed = std::vector<std::pair<QPointer<QWidget>, platform::TwipsRect>>;
  void AddPlaced(QWidget* child, const platform::TwipsRect& rect) { placed_.emplace_back(child, rect); }
  const Placed& PlacedChildren() const { return placed_; }

 private:
  Placed placed_;
};

}  // namespace zenta::qt
