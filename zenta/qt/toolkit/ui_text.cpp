#include "zenta/qt/toolkit/ui_text.h"

#include <QCoreApplication>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

QString UiText(const std::string& english) {
  if (english.empty()) return {};
  const QString translated = QCoreApplication::translate(kTranslationContext, english.c_str());
  // translate() reads the key as UTF-8 and hands it back when nothing is installed.
  return translated.isEmpty() ? ToQString(english) : translated;
}

}  // namespace zenta::qt
