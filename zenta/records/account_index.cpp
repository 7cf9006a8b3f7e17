#include "zenta/records/account_index.h"

#include "zenta/core/utf8.h"

#include <algorithm>

namespace zenta {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  for (char c : text) {
    // Names are split at blanks and at the punctuation accounts use ("Travel/Meals", "A-R").
    if (IsBlank(c) || c == '/' || c == '-' || c == ',' || c == '(' || c == ')' || c == '&') {
      if (!word.empty()) words.push_back(std::move(word));
      word.clear();
    } else {
      word.push_back(c);
    }
  }
  if (!word.empty()) words.push_back(std::move(word));
  for (std::string& each : words) each = utf8::ToUpperAscii(each);
  return words;
}

bool StartsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

}  // namespace

AccountIndex::AccountIndex(const std::vector<GLAccount>& accounts) {
  numbers_.reserve(accounts.size());
  name_words_.reserve(accounts.size());
  active_.reserve(accounts.size());
  std::size_t word_count = 0;
  for (int i = 0; i < static_cast<int>(accounts.size()); ++i) {
    numbers_.emplace_back(Key(accounts[i].number), i);
    name_words_.push_back(Words(accounts[i].name));
    word_count += name_words_.back().size();
    active_.push_back(accounts[i].active);
  }
  // Sized once: growing it word by word moved every word already in it, again and again.
  words_.reserve(word_count);
  for (int i = 0; i < static_cast<int>(accounts.size()); ++i) {
    for (const std::string& word : name_words_[static_cast<std::size_t>(i)]) words_.emplace_back(word, i);
  }
  std::sort(numbers_.begin(), numbers_.end());
  std::sort(words_.begin(), words_.end());
}

std::string AccountIndex::Key(std::string_view text) { return utf8::ToUpperAscii(utf8::Trim(text)); }

std::vector<AccountIndex::Entry>::const_iterator AccountIndex::FirstWithPrefix(const std::vector<Entry>& keys,
                                                                             std::string_view prefix) {
  return std::lower_bound(keys.begin(), keys.end(), prefix,
                          [](const Entry& entry, std::string_view key) { return std::string_view(entry.first) < key; });
}

int AccountIndex::FindNumber(std::string_view number) const {
  const std::string key = Key(number);
  const auto it = FirstWithPrefix(numbers_, key);
  return it != numbers_.end() && it->first == key ? it->second : -1;
}

std::vector<int> AccountIndex::Complete(std::string_view typed, std::size_t limit, Include include) const {
  std::vector<int> found;
  const std::string key = Key(typed);
  if (key.empty() || limit == 0) return found;
  std::vector<bool> taken;
  auto take = [&](int account) {
    if (include == Include::kActive && !active_[static_cast<std::size_t>(account)]) return;
    if (taken.empty()) taken.assign(active_.size(), false);
    if (taken[static_cast<std::size_t>(account)]) return;
    taken[static_cast<std::size_t>(account)] = true;
    found.push_back(account);
  };
  for (auto it = FirstWithPrefix(numbers_, key); it != numbers_.end() && found.size() < limit; ++it) {
    if (!StartsWith(it->first, key)) break;
    take(it->second);
  }
  const std::vector<std::string> typed_words = Words(key);
  if (typed_words.empty()) return found;
  auto has_all_words = [&](int account) {
    const std::vector<std::string>& words = name_words_[static_cast<std::size_t>(account)];
    return std::all_of(typed_words.begin() + 1, typed_words.end(), [&](const std::string& typed_word) {
      return std::any_of(words.begin(), words.end(), [&](const std::string& w) { return StartsWith(w, typed_word); });
    });
  };
  for (auto it = FirstWithPrefix(words_, typed_words.front()); it != words_.end() && found.size() < limit; ++it) {
    if (!StartsWith(it->first, typed_words.front())) break;
    if (has_all_words(it->second)) take(it->second);
  }
  return found;
}

}  // namespace zenta
