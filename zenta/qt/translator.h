#pragma once

/// @file
/// InstallTranslator(), the controls' texts in another language.

#include <QLocale>

namespace zenta::qt {

/// Installs the library's translation for `locale` (French Canada, `QLocale("fr_CA")`, ships
/// built into the library) into the application, so the controls' captions, tooltips,
/// accessible names, messages, titles and IsDataValid() reasons read in that language; without
/// it they stay in English exactly. Returns false when no translation exists for the locale.
/// Call once the QApplication exists, before creating the controls; a second call for another
/// locale replaces the first. Amounts show with the locale's decimal separator ("12,50"); the
/// values are the same exact amounts.
bool InstallTranslator(const QLocale& locale);

}  // namespace zenta::qt
