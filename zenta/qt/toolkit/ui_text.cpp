#include "zenta/qt/toolkit/ui_text.h"

#include <QCoreApplication>
#include <QLocale>

#include "zenta/core/message_template.h"
#include "zenta/entry/message_templates.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {

QString Translated(const std::string& english) {
  const QString translated = QCoreApplication::translate(kTranslationContext, english.c_str());
  // translate() reads the key as UTF-8 and hands it back when nothing is installed.
  return translated.isEmpty() ? ToQString(english) : translated;
}

// "Remaining -40.00": words followed by a figure the control worked out.
bool SplitTrailingFigure(const std::string& english, std::string& words, std::string& figure) {
  const auto space = english.rfind(' ');
  if (space == std::string::npos || space == 0) return false;
  figure = english.substr(space + 1);
  const auto point = figure.find('.');
  const std::size_t digits_from = !figure.empty() && figure[0] == '-' ? 1 : 0;
  if (point == std::string::npos || point == digits_from || point + 1 == figure.size()) return false;
  for (std::size_t i = digits_from; i < figure.size(); ++i) {
    if (i != point && (figure[i] < '0' || figure[i] > '9')) return false;
  }
  words = english.substr(0, space);
  return true;
}

// "Line 2: the account 9999 ...": the template translated, its figures put back (each figure
// itself a text the payer reads, such as a column caption or a reason).
std::optional<QString> FromTemplate(const std::string& english) {
  for (const char* templ : texts::kTemplates) {
    const std::optional<std::vector<std::string>> figures = MatchTemplate(templ, english);
    if (!figures) continue;
    std::vector<std::string> shown;
    for (const std::string& figure : *figures) shown.push_back(FromQString(UiText(figure)));
    const std::vector<std::string_view> args(shown.begin(), shown.end());
    // Filled in one pass, so a figure that itself holds "%1" stays as it is.
    return ToQString(FillTemplate(FromQString(Translated(templ)), args));
  }
  return std::nullopt;
}

}  // namespace

QString UiText(const std::string& english) {
  if (english.empty()) return {};
  const QString translated = Translated(english);
  if (translated != ToQString(english)) return translated;
  // A message listing refusals: each line on its own.
  if (const auto newline = english.find('\n'); newline != std::string::npos) {
    return UiText(english.substr(0, newline)) + QLatin1Char('\n') + UiText(english.substr(newline + 1));
  }
  if (std::optional<QString> filled = FromTemplate(english)) return *filled;
  // A caption with a figure: the words translated, the figure in the locale's decimal form.
  std::string leading;
  std::string figure;
  if (SplitTrailingFigure(english, leading, figure)) {
    return Translated(leading) + QLatin1Char(' ') + LocalAmountText(ToQString(figure), QLocale());
  }
  // A caption built with a currency code ("Invoice Amount (USD)"): the words are translated,
  // the code is kept.
  const auto open = english.rfind(" (");
  if (open == std::string::npos || open == 0 || english.back() != ')') return translated;
  const QString words = Translated(english.substr(0, open));
  if (words == ToQString(english.substr(0, open))) return translated;
  return words + ToQString(english.substr(open));
}

}  // namespace zenta::qt
