#pragma once

#include <string>

namespace zenta::platform {

enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageResult { Ok, Cancel, Yes, No };

struct MessageBox {
  std::string text;
  std::string title;
  MessageButtons buttons = MessageButtons::Ok;
  MessageIcon icon = MessageIcon::None;
  friend bool operator==(const MessageBox&, const MessageBox&) = default;
};

}  // namespace zenta::platform
