#include "zenta/controls/distribution/account_completion.h"

#include "zenta/platform/grid_navigation.h"

namespace zenta {

void AccountCompletion::Update(const std::string& typed) {
  if (!chart_.HasChart()) return Hide();
  offers_ = chart_.Chart()->Complete(typed);
  // An exact account alone needs no list.
  if (offers_.size() == 1 && AccountIndex::Key(offers_.front()->number) == AccountIndex::Key(typed)) offers_.clear();
  current_ = -1;
  Show();
}

void AccountCompletion::Hide() {
  if (offers_.empty() && current_ < 0) return;
  offers_.clear();
  current_ = -1;
  Show();
}

void AccountCompletion::Show() {
  std::vector<std::string> captions;
  captions.reserve(offers_.size());
  for (const GLAccount* account : offers_) captions.push_back(ChartOfAccounts::Caption(*account));
  grid_.ShowOffers(captions, current_);
}

std::optional<std::string> AccountCompletion::HandleKey(platform::KeyDown& key) {
  if (offers_.empty() || (key.shift & (platform::kCtrl | platform::kAlt))) return std::nullopt;
  const int last = static_cast<int>(offers_.size()) - 1;
  switch (key.key_code) {
    case platform::keys::kDown:
      current_ = current_ >= last ? 0 : current_ + 1;
      break;
    case platform::keys::kUp:
      current_ = current_ <= 0 ? last : current_ - 1;
      break;
    case platform::keys::kEscape:
      Hide();
      break;
    case platform::keys::kTab:
    case platform::keys::kEnter: {
      if (key.shift != platform::kNoShift || current_ < 0) {
        Hide();
        return std::nullopt;
      }
      return Take(current_);
    }
    default:
      return std::nullopt;
  }
  key.key_code = 0;
  if (!offers_.empty()) Show();
  return std::nullopt;
}

std::optional<std::string> AccountCompletion::Take(int offer) {
  if (offer < 0 || offer >= static_cast<int>(offers_.size())) return std::nullopt;
  std::string number = offers_[static_cast<std::size_t>(offer)]->number;
  Hide();
  return number;
}

}  // namespace zenta
