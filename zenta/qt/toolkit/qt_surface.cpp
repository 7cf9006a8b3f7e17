#include "zenta/qt/toolkit/qt_surface.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <algorithm>
#include <cstdlib>
#include <QKeyEvent>

#include "zenta/qt/toolkit/key_mapping.h"
#include "zenta/qt/toolkit/qt_grid_view.h"
#include "zenta/qt/toolkit/qt_check_box.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_date_edit.h"
#include "zenta/qt/toolkit/qt_label.h"
#include "zenta/qt/toolkit/qt_number_edit.h"
#include "zenta/qt/toolkit/qt_text_box.h"
#include "zenta/qt/toolkit/twips_layout.h"

namespace zenta::qt {


QtSurface::QtSurface(QWidget* parent) : QWidget(parent) {
  SetBackColor(colors::kButtonFace);
}

QtSurface::~QtSurface() {
  // A focused field finishes its focus-lost handling while the control is still whole.
  QWidget* focused = QApplication::focusWidget();
  if (focused && isAncestorOf(focused)) focused->clearFocus();
}

double QtSurface::FontScale(Qt::Orientation axis) const { return qt::FontScale(*this, axis); }

void QtSurface::Relayout() {
  if (PlacedChildren().empty()) return;
  const double sy = FontScale(Qt::Vertical);
  int design_right = 0;
  for (const auto& [widget, rect] : PlacedChildren()) design_right = std::max(design_right, rect.left + rect.width);
  // Wider fonts widen everything; a wider control stretches the fields across its width.
  const double fitted = FontScale(Qt::Horizontal);
  const int design_px = std::max(1, ToPixels(design_right + PlacedChildren().front().second.left, Qt::Horizontal));
  const double sx = std::max(fitted, static_cast<double>(width()) / design_px);
  int needed = 0;
  for (const auto& [widget, rect] : PlacedChildren()) {
    if (!widget) continue;
    const QRect px = PixelRect(rect);
    QRect scaled(qRound(px.x() * sx), qRound(px.y() * sy), qRound(px.width() * sx), qRound(px.height() * sy));
    // A caption is never cut: it takes the room its text needs at the current font.
    if (qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget)) {
      scaled.setWidth(std::max(scaled.width(), widget->sizeHint().width()));
      needed = std::max(needed, qRound(px.x() * fitted) + widget->sizeHint().width());
    }
    // A grid asks for the room its columns' captions need.
    if (auto* grid = dynamic_cast<QtGridView*>(widget.data())) {
      needed = std::max(needed, qRound(px.x() * fitted) + grid->CaptionsWidth());
    }
    scaled.setHeight(std::max(scaled.height(), widget->minimumSizeHint().height()));
    widget->setGeometry(scaled);
  }
  // A caption widened for its text pushes a caption beside it on the same line further right
  // (a translated "Invoice Date" and its "YYYY/MM/DD" hint).
  constexpr int kCaptionGap = 6;
  for (const auto& [left, left_rect] : PlacedChildren()) {
    auto* first = qobject_cast<QLabel*>(left.data());
    if (!first) continue;
    for (const auto& [right, right_rect] : PlacedChildren()) {
      auto* second = qobject_cast<QLabel*>(right.data());
      if (!second || second == first || right_rect.left <= left_rect.left) continue;
      if (second->geometry().top() >= first->geometry().bottom() || first->geometry().top() >= second->geometry().bottom()) continue;
      const int start = first->x() + first->sizeHint().width() + kCaptionGap;
      if (second->x() < start) {
        second->move(start, second->y());
        needed = std::max(needed, start + second->sizeHint().width());
      }
    }
  }
  needed += ToPixels(PlacedChildren().front().second.left, Qt::Horizontal);
  if (needed != caption_width_) {
    caption_width_ = needed;
    updateGeometry();
    if (parentWidget()) parentWidget()->updateGeometry();
  }
}

QSize QtSurface::FittedSize(int width_twips, int height_twips) const {
  return QSize(std::max(caption_width_, qRound(ToPixels(width_twips, Qt::Horizontal) * FontScale(Qt::Horizontal))),
               qRound(ToPixels(height_twips, Qt::Vertical) * FontScale(Qt::Vertical)));
}

int QtSurface::ToPixels(int twips, Qt::Orientation axis) const { return TwipsToPixels(*this, twips, axis); }

int QtSurface::ToTwips(int pixels, Qt::Orientation axis) const { return PixelsToTwips(*this, pixels, axis); }

QRect QtSurface::PixelRect(const platform::TwipsRect& rect) const {
  return QRect(ToPixels(rect.left, Qt::Horizontal), ToPixels(rect.top, Qt::Vertical),
               ToPixels(rect.width, Qt::Horizontal), ToPixels(rect.height, Qt::Vertical));
}

void QtSurface::Track(platform::Widget& widget, QWidget& qwidget, const std::string& name) {
  children_.push_back(&widget);
  by_qwidget_[&qwidget] = &widget;
  qwidget_by_name_[name] = &qwidget;
}

template <class W>
W& QtSurface::Register(W* widget, const platform::WidgetSpec& definition, QWidget& focus_target) {
  widget->setGeometry(PixelRect(definition.rect));
  AddPlaced(widget, definition.rect);
  Relayout();
  focus_target.installEventFilter(this);
  if (focus_target.focusPolicy() != Qt::NoFocus) {
    if (!definition.tab_stop) {
      // A composite forwards the focus to its editor: both must stay out of the tab chain.
      widget->setFocusPolicy(Qt::ClickFocus);
      focus_target.setFocusPolicy(Qt::ClickFocus);
    } else {
      if (last_tab_stop_) setTabOrder(last_tab_stop_, widget);
      last_tab_stop_ = widget;
    }
  }
  Track(*widget, *widget, definition.name);
  PairCaptions();
  return *widget;
}

void QtSurface::PairCaptions() {
  // A caption names the field drawn right under it, aligned on its left edge: the label becomes
  // the field's buddy (its mnemonic focuses the field) and the field's accessible name.
  constexpr int kMaxGap = 150;
  constexpr int kMaxIndent = 120;
  for (const auto& [field, field_rect] : PlacedChildren()) {
    if (!field || qobject_cast<QLabel*>(field) || field->focusPolicy() == Qt::NoFocus) continue;
    QLabel* caption = nullptr;
    int best_gap = kMaxGap + 1;
    for (const auto& [widget, rect] : PlacedChildren()) {
      auto* label = qobject_cast<QLabel*>(widget.data());
      if (!label) continue;
      const int gap = field_rect.top - (rect.top + rect.height);
      if (gap < -30 || gap > kMaxGap || std::abs(rect.left - field_rect.left) > kMaxIndent || gap >= best_gap) continue;
      caption = label;
      best_gap = gap;
    }
    if (!caption) continue;
    caption->setBuddy(field);
    QString name = caption->text();
    name.remove(QLatin1Char('&'));
    if (name.endsWith(QLatin1Char(':'))) name.chop(1);
    field->setAccessibleName(name.trimmed());
  }
}

void QtSurface::SetWidth(int twips) {
  requested_width_ = twips;
  resize(ToPixels(twips, Qt::Horizontal), height());
  updateGeometry();
  if (parentWidget()) parentWidget()->updateGeometry();
}

void QtSurface::SetHeight(int twips) {
  requested_height_ = twips;
  resize(width(), ToPixels(twips, Qt::Vertical));
  updateGeometry();
  if (parentWidget()) parentWidget()->updateGeometry();
}

bool PlaceOnSurface(QWidget& widget, const platform::TwipsRect& rect) {
  auto* container = dynamic_cast<TwipsContainer*>(widget.parentWidget());
  if (!container || !container->PlacedRect(widget)) return false;
  container->Place(widget, rect);
  return true;
}

std::optional<platform::TwipsRect> RectOnSurface(const QWidget& widget) {
  auto* container = dynamic_cast<const TwipsContainer*>(widget.parentWidget());
  return container ? container->PlacedRect(widget) : std::nullopt;
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
  return Register(label, definition, *label);
}

platform::Grid& QtSurface::AddGrid(const platform::WidgetSpec& definition, int column_count) {
  auto* grid = new QtGridView(this, definition, column_count);
  return Register(grid, definition, *grid);
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
  if (std::optional<QPalette::ColorRole> role = PaletteRoleOf(color)) {
    // A system colour is a palette role, so it follows the theme.
    setPalette(QPalette());
    setBackgroundRole(*role);
    return;
  }
  QPalette p = palette();
  p.setColor(QPalette::Window, ToQColor(color, p));
  setPalette(p);
  setBackgroundRole(QPalette::Window);
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
    // A key a child ignores travels on to its parents: preview it only where it starts.
    if (watched != QApplication::focusWidget()) return QWidget::eventFilter(watched, event);
    platform::KeyDown key = ToKeyDown(*static_cast<QKeyEvent*>(event));
    on_key_down_(key);
    if (key.key_code == 0) return true;
  }
  return QWidget::eventFilter(watched, event);
}

void QtSurface::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Relayout();
}

void QtSurface::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Relayout();
  if (on_resize_) on_resize_();
}

void QtSurface::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Relayout();  // captions measure their final size once polished
  if (shown_once_) return;
  shown_once_ = true;
  if (on_shown_) on_shown_();
}

}  // namespace zenta::qt
