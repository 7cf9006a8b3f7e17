#include "zenta/qt/translator.h"

#include <QCoreApplication>
#include <QTranslator>

namespace zenta::qt {

namespace translations {
extern const unsigned char kFrenchCanada[];
extern const int kFrenchCanadaSize;
}  // namespace translations

namespace {
constexpr const char* kObjectName = "zenta-translator";
}

bool InstallTranslator(const QLocale& locale) {
  QCoreApplication* app = QCoreApplication::instance();
  if (!app) return false;
  // The one translator of the library belongs to the application object.
  if (auto* previous = app->findChild<QTranslator*>(QString::fromLatin1(kObjectName), Qt::FindDirectChildrenOnly)) {
    QCoreApplication::removeTranslator(previous);
    delete previous;
  }
  // French Canada is the one translation shipped; any French locale takes it.
  if (locale.language() != QLocale::French || translations::kFrenchCanadaSize == 0) return false;
  auto* translator = new QTranslator(app);
  translator->setObjectName(QString::fromLatin1(kObjectName));
  if (!translator->load(translations::kFrenchCanada, translations::kFrenchCanadaSize)) {
    delete translator;
    return false;
  }
  return QCoreApplication::installTranslator(translator);
}

}  // namespace zenta::qt
