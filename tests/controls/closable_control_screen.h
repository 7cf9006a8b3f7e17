#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::testing {

// A host's form holding one grid control that the host may close at any moment: from an event
// handler (CloseOn) or while the control's distribution window is open.
template <class Control>
class ClosableControlScreen : public ::testing::Test {
 public:
  explicit ClosableControlScreen(const char* surface_name)
      : surface(form.AddSurface(surface_name)), control(std::make_unique<Control>(surface, host, context)) {}

  void ShowForm() {
    form.AddHostField("txtNext");
    form.Show();
  }
  FrmDistribution& Window() { return context.Distribution(); }
  headless::Dialog& Dialog() { return dynamic_cast<headless::Dialog&>(Window().Surface()); }
  void ClickInWindow(const char* button) { user.Click(Dialog().template Get<headless::ButtonWidget>(button)); }
  void AcceptTheProposedSplit() {
    form.ExpectDialog([this](headless::Dialog&) { ClickInWindow("cmdGLAccept"); });
  }
  // Closes the form when the named event is raised.
  void CloseOn(const std::string& name) {
    host.OnEvent([this, name](platform::RaisedEvent& event) {
      if (event.name == name) control.reset();
    });
  }
  // Opens the window, types a line in it and closes the form from there: the window closes as
  // cancelled and the payer's further keys reach nothing of the control.
  void CloseWhileTheWindowIsOpen() {
    form.ExpectDialog([&](headless::Dialog&) {
      user.Type("5100\t");
      control.reset();
      EXPECT_FALSE(Dialog().IsShown());
    });
    control->ShowDistribution();
    EXPECT_EQ(control, nullptr);
    EXPECT_FALSE(Window().Chosen());
    KeepTyping();
  }
  // The payer goes on typing after the control is gone: nothing may reach it.
  void KeepTyping() {
    user.Type("12\t");
    user.PressEnter();
    user.PressTab();
  }

  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  headless::Surface& surface;
  std::unique_ptr<Control> control;
};

}  // namespace zenta::testing
