#pragma once

#include <QLocale>

namespace zenta::qt {

// Installs the library's translation for `locale` (French Canada ships with it) into the
// application, so the controls' captions, tooltips, messages and titles read in that language;
// without it they stay in English exactly. Returns false when no translation exists for the
// locale. Call once the QApplication exists, before creating the controls; a second call for
// another locale replaces the first.
bool InstallTranslator(const QLocale& locale);

}  // namespace zenta::qt
