#pragma once

#include <functional>
#include <memory>
#include <string>

#include "zenta/core/date.h"
#include "zenta/platform/keys.h"
#include "zenta/platform/widget.h"

namespace zenta::headless {

class Dialog;
class Surface;
class TextBoxWidget;

// A window in memory: it holds control surfaces and the host's own fields around them, owns
// the focus and the input queue. Tab order is every tab-stop child of every surface, in
// creation order, then the host's own fields, in the order added; Tab from the last wraps to
// the first. A focus change makes the new widget the focused (and its surface's active) child
// first, then sends the old widget its focus-lost notification, then the new one its
// focus-gained notification — so a focus-lost handler sees where the focus went.
//
// While a dialog is shown (Dialog::ShowModal) the focus and the Tab order stay inside it, and
// Alt with a button's mnemonic and Escape (its cancel button) act within it.
class Form {
 public:
  Form();
  ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // A surface for one control; size in twips. User mode is on unless switched off.
  Surface& AddSurface(const std::string& name, int width_twips = 4800, int height_twips = 3600);
  // A text box of the host's own, outside every control ("the next field on the screen").
  TextBoxWidget& AddHostField(const std::string& name);
  TextBoxWidget* FirstHostField() const;

  // Sends every surface its shown notification.
  void Show();

  // A modal window for a dialog's logic; the caller owns it and keeps it between showings.
  std::unique_ptr<Dialog> CreateDialog(const std::string& name = "dialog");
  // The script the next dialog shown plays (what the person does in it, through User), in
  // order; a dialog shown with no script queued raises UnexpectedDialog.
  void ExpectDialog(std::function<void(Dialog&)> script);
  std::size_t PendingDialogScripts() const;

  platform::Widget* Focused() const;
  // Moves the focus (nullptr: nowhere). Ignored for a widget that cannot take it now.
  void SetFocus(platform::Widget* widget);
  bool CanFocus(const platform::Widget* widget) const;
  // A widget or surface was disabled or hidden: a focused widget that can no longer hold the
  // focus passes it on in tab order (nowhere when no widget can take it), as on a desktop.
  void FocusableChanged();

  // Keystrokes queued by InjectKeys ("{TAB}", "+{TAB}", "{ENTER}") and run after the handler
  // that queued them returns; User runs them around each action. Keys that keep queueing more
  // are stopped after 1000 with std::logic_error rather than looping forever.
  void QueueKeys(const std::string& keys);
  void ProcessQueuedKeys();

  // Actions posted by controls and grids (HostServices::Post, GridEngine::PostMessage), run in
  // order after the notification that posted them: by User after each action, after the
  // queued keys, or here. Actions that keep posting more are stopped after 1000 with
  // std::logic_error. A dialog shown from a posted action runs later posts while it is up,
  // as a modal loop does.
  void Post(std::function<void()> action);
  void RunPosted();
  // Queued keys, then posted actions, until neither is left.
  void Settle();

  // Key delivery with full semantics: surface preview, then the focused widget, then the
  // form's own handling (Tab and Shift+Tab move the focus; a surviving Enter reaches the
  // focused widget as the character 13). Returns false when the key was discarded or consumed
  // on the way, and then no character should follow.
  bool DeliverKeyDown(platform::KeyDown key);
  void DeliverCharacter(char32_t character);

  // Used by Dialog.
  void DialogShown(Dialog& dialog);
  void DialogHidden(Dialog& dialog);
  void PlayDialogScript(Dialog& dialog);

  // Today, for F3 in date edits and for every Host on this form: the system clock's date
  // unless set.
  Date Today() const;
  void SetToday(Date today);

 private:
  void MoveFocusInTabOrder(bool backward);

  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace zenta::headless
