#include "zenta/qt/toolkit/twips_layout.h"

#include <QFontMetricsF>
#include <algorithm>

namespace zenta::qt {

namespace {
// The layouts were drawn for an 8-point dialog font whose letters average about 5.6 pixels at
// 96 DPI (measured over the alphabet, as dialog units are) and whose lines are 13 pixels high.
constexpr double kDesignLetterWidthAt96Dpi = 5.6;
constexpr double kDesignLineHeightAt96Dpi = 13.0;

double AverageLetterWidth(const QFont& font) {
  static const QString kAlphabet = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
  return QFontMetricsF(font).horizontalAdvance(kAlphabet) / static_cast<double>(kAlphabet.size());
}
}  // namespace

double FontScale(const QWidget& widget, Qt::Orientation axis) {
  const double design = axis == Qt::Horizontal ? kDesignLetterWidthAt96Dpi * widget.logicalDpiX() / 96.0
                                               : kDesignLineHeightAt96Dpi * widget.logicalDpiY() / 96.0;
  const double actual = axis == Qt::Horizontal ? AverageLetterWidth(widget.font()) : QFontMetricsF(widget.font()).height();
  return std::max(1.0, actual / design);
}

int TwipsToPixels(const QWidget& widget, int twips, Qt::Orientation axis) {
  const int dpi = axis == Qt::Horizontal ? widget.logicalDpiX() : widget.logicalDpiY();
  return qRound(twips * dpi / 1440.0);
}

int PixelsToTwips(const QWidget& widget, int pixels, Qt::Orientation axis) {
  const int dpi = axis == Qt::Horizontal ? widget.logicalDpiX() : widget.logicalDpiY();
  return dpi > 0 ? qRound(pixels * 1440.0 / dpi) : pixels * 15;
}

void TwipsContainer::Place(QWidget& child, const platform::TwipsRect& rect) {
  for (auto& [widget, placed] : placed_) {
    if (widget == &child) placed = rect;
  }
  Relayout();
}

std::optional<platform::TwipsRect> TwipsContainer::PlacedRect(const QWidget& child) const {
  for (const auto& [widget, placed] : placed_) {
    if (widget == &child) return placed;
  }
  return std::nullopt;
}

}  // namespace zenta::qt
