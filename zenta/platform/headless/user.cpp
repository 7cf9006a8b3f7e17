#include "zenta/platform/headless/user.h"

#include "zenta/core/utf8.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/check_box_widget.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/typed_key.h"

namespace zenta::headless {

namespace {
// Each action is one turn of an event loop: keystrokes a program call injected since the last
// action run first, and those the action's own handlers inject run before it returns.
template <class Action>
void Turn(Form& form, Action action) {
  form.Settle();
  action();
  form.Settle();
}
}  // namespace

void User::Type(std::string_view text) {
  for (char32_t character : utf8::Decode(text)) {
    if (character == U'\t') {
      PressTab();
    } else if (character == U'\r' || character == U'\n') {
      PressEnter();
    } else {
      Turn(form_, [&] {
        if (form_.DeliverKeyDown(platform::KeyDownFor(character))) form_.DeliverCharacter(character);
      });
    }
  }
}

void User::PressKey(int key_code, int shift) {
  Turn(form_, [&] {
    // Enter's character comes with its key-down; Backspace's is sent here.
    if (form_.DeliverKeyDown(platform::KeyDown{key_code, shift}) && key_code == platform::keys::kBackspace) {
      form_.DeliverCharacter(platform::keys::kBackspace);
    }
  });
}

void User::PressBackspace() { PressKey(platform::keys::kBackspace); }

void User::Click(platform::Widget& widget) {
  Turn(form_, [&] {
    if (!form_.CanFocus(&widget)) return;
    form_.SetFocus(&widget);
    if (auto* box = dynamic_cast<CheckBoxWidget*>(&widget); box && box->HasFocus()) box->Toggle();
    if (auto* button = dynamic_cast<ButtonWidget*>(&widget); button && button->HasFocus()) button->Click();
  });
}

void User::ClickCell(platform::Grid& grid, int row, int column) {
  Turn(form_, [&] {
    if (!form_.CanFocus(&grid)) return;
    form_.SetFocus(&grid);
    if (!grid.HasFocus()) return;
    platform::GridEngine& engine = grid.Engine();
    if (column >= 0 && column < engine.ColumnCount() && engine.Column(column).kind == platform::ColumnKind::Button) {
      engine.ClickButton(row, column);
    } else {
      engine.ClickCell(row, column);
    }
  });
}

void User::ClickOffer(platform::Grid& grid, int offer) {
  Turn(form_, [&] {
    if (auto* widget = dynamic_cast<GridWidget*>(&grid)) widget->ClickOffer(offer);
  });
}

void User::Focus(platform::Widget& widget) {
  Turn(form_, [&] { form_.SetFocus(&widget); });
}

void User::LeaveControl() {
  Turn(form_, [&] { form_.SetFocus(form_.FirstHostField()); });
}

}  // namespace zenta::headless
