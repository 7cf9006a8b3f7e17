#include "zenta/core/date_mask.h"

#include "zenta/core/date_format.h"

namespace zenta {

namespace {
constexpr std::size_t kDigits = 8;
}  // namespace

DateMask DateMask::FromText(std::string_view text) {
  DateMask mask;
  for (char c : text) mask.Type(static_cast<unsigned char>(c));
  return mask;
}

DateMask DateMask::Of(std::optional<Date> value) { return value ? FromText(value->ToText()) : DateMask(); }

bool DateMask::Type(char32_t character) {
  if (character < U'0' || character > U'9' || digits_.size() >= kDigits) return false;
  digits_ += static_cast<char>(character);
  return true;
}

void DateMask::Backspace() {
  if (!digits_.empty()) digits_.pop_back();
}

std::string DateMask::Text() const {
  std::string text(formats::kDateMask);
  std::size_t next = 0;
  for (char& slot : text) {
    if (slot == '_' && next < digits_.size()) slot = digits_[next++];
  }
  return text;
}

int DateMask::Caret() const {
  const std::string text = Text();
  const auto prompt = text.find('_');
  return static_cast<int>(prompt == std::string::npos ? text.size() : prompt);
}

std::optional<Date> DateMask::Value() const {
  if (digits_.size() != kDigits) return std::nullopt;
  return Date::Parse(digits_.substr(0, 4) + "/" + digits_.substr(4, 2) + "/" + digits_.substr(6, 2));
}

}  // namespace zenta
