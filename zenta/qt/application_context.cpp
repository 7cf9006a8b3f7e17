#include "zenta/qt/application_context.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <stdexcept>

#include "zenta/qt/toolkit/qt_dialog_surface.h"
#include "zenta/qt/toolkit/qt_host.h"

namespace zenta::qt {

namespace {

constexpr const char* kObjectName = "zenta-library-context";

// Owned by the application object, so there is one per application and no global of our own.
class ContextHolder : public QObject {
 public:
  explicit ContextHolder(QObject* application) : QObject(application), host_(anchor_) {
    setObjectName(QString::fromLatin1(kObjectName));
    context_ = std::make_unique<LibraryContext>(host_, [this] {
      auto dialog = std::make_unique<QtDialogSurface>();
      // The dialog's own messages are modal over the dialog.
      host_.SetOwner(*dialog);
      return dialog;
    });
  }
  LibraryContext& Context() { return *context_; }

 private:
  QWidget anchor_;
  QtHost host_;
  std::unique_ptr<LibraryContext> context_;
};

void DestroyContext() {
  if (QCoreApplication* app = QCoreApplication::instance()) {
    delete app->findChild<ContextHolder*>(QString::fromLatin1(kObjectName), Qt::FindDirectChildrenOnly);
  }
}

}  // namespace

LibraryContext& ApplicationContext() {
  QCoreApplication* app = QCoreApplication::instance();
  if (!app) throw std::logic_error("the Zenta controls need a QApplication");
  auto* holder = app->findChild<ContextHolder*>(QString::fromLatin1(kObjectName), Qt::FindDirectChildrenOnly);
  if (!holder) {
    holder = new ContextHolder(app);
    // Widgets must go while the application can still take them down.
    qAddPostRoutine(DestroyContext);
  }
  return holder->Context();
}

}  // namespace zenta::qt
