#include "zenta/qt/toolkit/qt_surface.h"

#include <QApplication>
#include <algorithm>
#include <QKeyEvent>

#include "zenta/qt/toolkit/key_mapping.h"
#include "zenta/qt/toolkit/qt_array_grid.h"
#include "zenta/qt/toolkit/qt_check_box.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_date_edit.h"
#include "zenta/qt/toolkit/qt_label.h"
#include "zenta/qt/toolkit/qt_number_edit.h"
#include "zenta/qt/toolkit/qt_text_box.h"

namespace zenta::qt {

namespace {
constexpr double kTwipsPerInch = 1440.0;
}

QtSurface::QtSurface(QWidget* parent) : QWidget(parent) {
  QFont small = font();
  small.setPointSize(8);  // the controls are laid out for an 8-point dialog font
  setFont(small);
  SetBackColor(colors::kButtonFace);
}

double QtSurface::PixelsPerTwip() const {
  // Twips become pixels through the screen's logical DPI. The layouts were drawn for an 8-point
  // dialog font about 5 pixels a character wide at 96 DPI; a wider font widens them in step, so
  // captions are not cut.
  double font_scale = fontMetrics().averageCharWidth() / (5.0 * logicalDpiX() / 96.0);
  return logicalDpiX() / kTwipsPerInch * std::clamp(font_scale, 1.0, 2.0);
}

QtSurface::~QtSurface() {
  // A focused field finishes its focus-lost handling while the control is still whole.
  QWidget* focused = QApplication::focusWidget();
  if (focused && isAncestorOf(focused)) focused->clearFocus();
}

int QtSurface::ToPixels(int twips) const { return qRound(twips * PixelsPerTwip()); }
int QtSurface::ToTwips(int pixels) const { return qRound(pixels / PixelsPerTwip()); }

QRect QtSurface::PixelRect(const platform::TwipsRect& rect) const {
  return QRect(ToPixels(rect.left), ToPixels(rect.top), ToPixels(rect.width), ToPixels(rect.height));
}

template <class W>
W& QtSurface::Register(W* widget, const platform::WidgetSpec& definition, QWidget& focus_target) {
  widget->setGeometry(PixelRect(definition.rect));
  if (!definition.tab_stop && focus_target.focusPolicy() != Qt::NoFocus) focus_target.setFocusPolicy(Qt::ClickFocus);
  focus_target.installEventFilter(this);
  children_.push_back(widget);
  by_qwidget_[widget] = widget;
  qwidget_by_name_[definition.name] = widget;
  return *widget;
}

platform::NumberEdit& QtSurface::AddNumberEdit(const platform::WidgetSpec& definition) {
  auto* edit = new QtNumberEdit(this, definition);
  return Register(edit, definition, *edit);
}

platform::DateEdit& QtSurface::AddDateEdit(const platform::WidgetSpec& definition) {
  auto* date = new QtDateEdit(this, definition);
  return Register(date, definition, date->Editor());
}

platform::TextBox& QtSurface::AddTextBox(const platform::WidgetSpec& definition) {
  auto* box = new QtTextBox(this, definition);
  return Register(box, definition, *box);
}

platform::CheckBox& QtSurface::AddCheckBox(const platform::WidgetSpec& definition, const std::string& caption) {
  auto* box = new QtCheckBox(this, definition, caption);
  return Register(box, definition, *box);
}

platform::Label& QtSurface::AddLabel(const platform::WidgetSpec& definition, const std::string& caption) {
  auto* label = new QtLabel(this, definition, caption);
  label->setFocusPolicy(Qt::NoFocus);
  return Register(label, definition, *label);
}

platform::Grid& QtSurface::AddGrid(const platform::WidgetSpec& definition, int column_count) {
  auto* grid = new QtArrayGrid(this, definition, column_count);
  return Register(grid, definition, *grid);
}

platform::NumberEdit& QtSurface::AddGridEditor(const platform::WidgetSpec& definition, platform::Grid& grid, int column) {
  auto* edit = new QtNumberEdit(this, definition);
  edit->setFocusPolicy(Qt::ClickFocus);
  edit->installEventFilter(this);
  children_.push_back(edit);
  by_qwidget_[edit] = edit;
  qwidget_by_name_[definition.name] = edit;
  grid.SetColumnEditor(column, edit);
  return *edit;
}

platform::Widget* QtSurface::ActiveChild() const {
  for (const QWidget* focused = QApplication::focusWidget(); focused && focused != this;
       focused = focused->parentWidget()) {
    auto found = by_qwidget_.find(focused);
    if (found != by_qwidget_.end()) return found->second;
  }
  return nullptr;
}

void QtSurface::SetBackColor(OleColor color) {
  back_color_ = color;
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, ToQColor(color, QPalette()));
  setPalette(p);
}

platform::Widget* QtSurface::Find(const std::string& name) const {
  for (platform::Widget* child : children_) {
    if (child->Name() == name) return child;
  }
  return nullptr;
}

QWidget* QtSurface::FindQWidget(const std::string& name) const {
  auto found = qwidget_by_name_.find(name);
  return found == qwidget_by_name_.end() ? nullptr : found->second;
}

bool QtSurface::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && on_key_down_) {
    // A key a child ignores travels on to its parents: preview it where it starts only.
    if (watched != QApplication::focusWidget()) return QWidget::eventFilter(watched, event);
    platform::KeyDown key = ToKeyDown(*static_cast<QKeyEvent*>(event));
    on_key_down_(key);
    if (key.key_code == 0) return true;
  }
  return QWidget::eventFilter(watched, event);
}

void QtSurface::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (on_resize_) on_resize_();
}

void QtSurface::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (shown_once_) return;
  shown_once_ = true;
  if (on_shown_) on_shown_();
}

}  // namespace zenta::qt
