#pragma once

#include <QDialog>
#include <QPointer>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "zenta/platform/dialog_surface.h"
#include "zenta/qt/toolkit/twips_layout.h"

namespace zenta::qt {

// A dialog's window as a QDialog. Children sit at their twips rectangles in the order created,
// which is also the tab order; frames and shapes are drawn behind the rest. Showing runs a modal
// loop until the dialog's own logic hides the window: Escape, and the title bar's close button,
// click the cancel button instead of closing, so the logic decides, and the window is never
// destroyed by the payer. The activation notification runs from a queued call once the window
// is up, never from inside the call that showed it. The layout, drawn in twips for an 8-point
// font, grows with a larger font, and a label is the buddy of the field after it.
class QtDialogSurface : public QDialog, public platform::DialogSurface, public TwipsContainer {
 public:
  explicit QtDialogSurface(QWidget* parent = nullptr);
  ~QtDialogSurface() override;

  platform::Grid& AddGrid(const platform::WidgetSpec& definition, int column_count) override;
  platform::TextBox& AddTextBox(const platform::WidgetSpec& definition) override;
  platform::Button& AddButton(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Label& AddLabel(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Widget& AddFrame(const platform::WidgetSpec& definition, const std::string& caption) override;
  platform::Widget& AddShape(const platform::WidgetSpec& definition) override;

  void SetCancelButton(platform::Button& button) override { cancel_ = &button; }
  void SetTitle(const std::string& title) override;

  platform::TwipsRect Rect() const override;
  void SetRect(const platform::TwipsRect& rect) override;

  void ShowModal() override;
  void Hide() override { hide(); }
  bool IsShown() const override { return isVisible(); }
  void OnActivate(platform::Callback callback) override { on_activate_ = std::move(callback); }

  std::vector<platform::Widget*> Children() const override { return children_; }
  platform::Widget* ActiveChild() const override;
  bool CanFocus(const platform::Widget& widget) const override;

  platform::Widget* Find(const std::string& name) const;
  QWidget* FindQWidget(const std::string& name) const;

 public slots:
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  template <class W>
  W& Register(W* widget, const platform::WidgetSpec& definition);
  int ToPixels(int twips, Qt::Orientation axis) const;
  // The children's and the window's twips drawn for an 8-point font, scaled to the font in use.
  void Relayout() override;
  int ToTwips(int pixels, Qt::Orientation axis) const;

  std::vector<platform::Widget*> children_;
  platform::TwipsRect window_rect_;
  std::map<const QWidget*, platform::Widget*> by_qwidget_;
  std::map<const platform::Widget*, QWidget*> qwidget_of_;
  QPointer<QWidget> last_tab_stop_;
  platform::Button* cancel_ = nullptr;
  platform::Callback on_activate_;
};

}  // namespace zenta::qt
