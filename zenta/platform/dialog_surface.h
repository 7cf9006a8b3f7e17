#pragma once

#include <functional>
#include <string>
#include <vector>

#include "zenta/platform/button.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/label.h"
#include "zenta/platform/text_box.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// A modal top-level window made by a toolkit for a dialog's logic. The logic creates it once,
// adds its children in tab order, and keeps it: showing and hiding never destroy it. Frames
// and shapes are decorations (no focus, no input) but have a placement.
class DialogSurface {
 public:
  virtual ~DialogSurface() = default;

  virtual Grid& AddGrid(const WidgetSpec& definition, int column_count) = 0;
  virtual TextBox& AddTextBox(const WidgetSpec& definition) = 0;
  virtual Button& AddButton(const WidgetSpec& definition, const std::string& caption) = 0;
  virtual Label& AddLabel(const WidgetSpec& definition, const std::string& caption) = 0;
  virtual Widget& AddFrame(const WidgetSpec& definition, const std::string& caption) = 0;
  virtual Widget& AddShape(const WidgetSpec& definition) = 0;

  // Escape clicks this button.
  virtual void SetCancelButton(Button& button) = 0;
  virtual void SetTitle(const std::string& title) = 0;

  // The window's outer placement on the screen, in twips.
  virtual TwipsRect Rect() const = 0;
  virtual void SetRect(const TwipsRect& rect) = 0;
  void Move(int left, int top) {
    TwipsRect rect = Rect();
    rect.left = left;
    rect.top = top;
    SetRect(rect);
  }

  // Shows the window modally: returns only once Hide() has been called (from the dialog's own
  // handlers). The window is activated, and the activation notification runs, when it shows.
  virtual void ShowModal() = 0;
  virtual void Hide() = 0;
  virtual bool IsShown() const = 0;
  virtual void OnActivate(Callback callback) = 0;

  virtual std::vector<Widget*> Children() const = 0;
  virtual Widget* ActiveChild() const = 0;
  // Whether the widget could take the focus now (enabled, visible, in a shown window).
  virtual bool CanFocus(const Widget& widget) const = 0;
};

}  // namespace zenta::platform
