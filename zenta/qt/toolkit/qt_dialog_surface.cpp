#include "zenta/qt/toolkit/qt_dialog_surface.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <QWindow>
#include <algorithm>

#include "zenta/qt/toolkit/qt_button.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_decoration.h"
#include "zenta/qt/toolkit/qt_grid_view.h"
#include "zenta/qt/toolkit/qt_label.h"
#include "zenta/qt/toolkit/qt_text_box.h"
#include "zenta/qt/toolkit/twips_layout.h"
#include "zenta/qt/toolkit/ui_text.h"
#include "zenta/qt/toolkit/window_activation.h"

namespace zenta::qt {


QtDialogSurface::QtDialogSurface(QWidget* parent) : QDialog(parent) {
  setModal(true);
  setSizeGripEnabled(false);
}

QtDialogSurface::~QtDialogSurface() = default;

int QtDialogSurface::ToPixels(int twips, Qt::Orientation axis) const { return TwipsToPixels(*this, twips, axis); }

int QtDialogSurface::ToTwips(int pixels, Qt::Orientation axis) const { return PixelsToTwips(*this, pixels, axis); }

void QtDialogSurface::Relayout() {
  const double sx = FontScale(*this, Qt::Horizontal);
  const double sy = FontScale(*this, Qt::Vertical);
  for (const auto& [widget, rect] : PlacedChildren()) {
    if (!widget) continue;
    widget->setGeometry(qRound(ToPixels(rect.left, Qt::Horizontal) * sx), qRound(ToPixels(rect.top, Qt::Vertical) * sy),
                        qRound(ToPixels(rect.width, Qt::Horizontal) * sx),
                        std::max(qRound(ToPixels(rect.height, Qt::Vertical) * sy), widget->minimumSizeHint().height()));
  }
  // The rectangle is the outer one: the window manager's frame comes off the client area.
  const int frame_width = frameGeometry().width() - width();
  const int frame_height = frameGeometry().height() - height();
  // A frame thicker than the one the layout was drawn for never cuts off a child.
  QRect children;
  for (const auto& [widget, rect] : PlacedChildren()) {
    if (widget && !widget->isHidden()) children |= widget->geometry();
  }
  move(ToPixels(window_rect_.left, Qt::Horizontal), ToPixels(window_rect_.top, Qt::Vertical));
  resize(std::max({1, qRound(ToPixels(window_rect_.width, Qt::Horizontal) * sx) - frame_width, children.right() + 1}),
         std::max({1, qRound(ToPixels(window_rect_.height, Qt::Vertical) * sy) - frame_height, children.bottom() + 1}));
}

void QtDialogSurface::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::FontChange) Relayout();
}

template <class W>
W& QtDialogSurface::Register(W* widget, const platform::WidgetSpec& definition) {
  AddPlaced(widget, definition.rect);
  Relayout();
  if (widget->focusPolicy() != Qt::NoFocus) {
    if (!definition.tab_stop) {
      widget->setFocusPolicy(Qt::ClickFocus);
    } else {
      if (last_tab_stop_) setTabOrder(last_tab_stop_, widget);
      last_tab_stop_ = widget;
    }
  }
  children_.push_back(widget);
  by_qwidget_[widget] = widget;
  qwidget_of_[widget] = widget;
  return *widget;
}

platform::Grid& QtDialogSurface::AddGrid(const platform::WidgetSpec& definition, int column_count) {
  return Register(new QtGridView(this, definition, column_count), definition);
}

platform::TextBox& QtDialogSurface::AddTextBox(const platform::WidgetSpec& definition) {
  auto* box = new QtTextBox(this, definition);
  if (!children_.empty()) {
    if (auto* label = dynamic_cast<QLabel*>(children_.back())) label->setBuddy(box);
  }
  return Register(box, definition);
}

platform::Button& QtDialogSurface::AddButton(const platform::WidgetSpec& definition, const std::string& caption) {
  return Register(new QtButton(this, definition, caption), definition);
}

platform::Label& QtDialogSurface::AddLabel(const platform::WidgetSpec& definition, const std::string& caption) {
  return Register(new QtLabel(this, definition, caption), definition);
}

platform::Widget& QtDialogSurface::AddFrame(const platform::WidgetSpec& definition, const std::string& caption) {
  auto* frame = new QtFrame(this, definition, caption);
  frame->lower();
  return Register(frame, definition);
}

platform::Widget& QtDialogSurface::AddShape(const platform::WidgetSpec& definition) {
  auto* shape = new QtShape(this, definition);
  shape->lower();
  return Register(shape, definition);
}

void QtDialogSurface::SetTitle(const std::string& title) { setWindowTitle(UiText(title)); }

platform::TwipsRect QtDialogSurface::Rect() const { return window_rect_; }

void QtDialogSurface::SetRect(const platform::TwipsRect& rect) {
  window_rect_ = rect;
  Relayout();
}

void QtDialogSurface::ShowModal() {
  if (isVisible()) return;
  QPointer<QWidget> caller = QApplication::activeWindow();
  exec();
  // The payer goes on in the window that opened the dialog.
  if (caller) ActivateWindow(*caller);
}

void QtDialogSurface::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  activateWindow();
  QPointer<QtDialogSurface> self(this);
  QMetaObject::invokeMethod(
      this,
      [self] {
        if (!self || !self->isVisible()) return;
        ActivateWindow(*self);
        if (self->on_activate_) self->on_activate_();
      },
      Qt::QueuedConnection);
}

void QtDialogSurface::reject() {
  // The dialog's logic decides what cancelling means; with no cancel button Escape does nothing.
  if (auto* button = dynamic_cast<QtButton*>(cancel_)) {
    if (button->isEnabled()) button->click();
  }
}

void QtDialogSurface::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (isVisible()) reject();
}

platform::Widget* QtDialogSurface::ActiveChild() const {
  for (const QWidget* focused = QApplication::focusWidget(); focused && focused != this;
       focused = focused->parentWidget()) {
    auto found = by_qwidget_.find(focused);
    if (found != by_qwidget_.end()) return found->second;
  }
  return nullptr;
}

bool QtDialogSurface::CanFocus(const platform::Widget& widget) const {
  auto found = qwidget_of_.find(&widget);
  if (found == qwidget_of_.end()) return false;
  const QWidget* q = found->second;
  return isVisible() && q->isVisibleTo(this) && q->isEnabled() && q->focusPolicy() != Qt::NoFocus;
}

platform::Widget* QtDialogSurface::Find(const std::string& name) const {
  for (platform::Widget* child : children_) {
    if (child->Name() == name) return child;
  }
  return nullptr;
}

QWidget* QtDialogSurface::FindQWidget(const std::string& name) const {
  platform::Widget* widget = Find(name);
  if (!widget) return nullptr;
  auto found = qwidget_of_.find(widget);
  return found == qwidget_of_.end() ? nullptr : found->second;
}

}  // namespace zenta::qt
