#include "zenta/qt/toolkit/ui_text.h"

#include <QCoreApplication>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {

QString Translated(const std::string& english) {
  const QString translated = QCoreApplication::translate(kTranslationContext, english.c_str());
  // translate() reads the key as UTF-8 and hands it back when nothing is installed.
  return translated.isEmpty() ? ToQString(english) : translated;
}

}  // namespace

QString UiText(const std::string& english) {
  if (english.empty()) return {};
  const QString translated = Translated(english);
  if (translated != ToQString(english)) return translated;
  // A caption built with a currency code ("Invoice Amount (USD)"): the words are translated,
  // the code is kept.
  const auto open = english.rfind(" (");
  if (open == std::string::npos || open == 0 || english.back() != ')') return translated;
  const QString words = Translated(english.substr(0, open));
  if (words == ToQString(english.substr(0, open))) return translated;
  return words + ToQString(english.substr(open));
}

}  // namespace zenta::qt
