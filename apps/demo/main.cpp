// The demo host: a bill-payment screen built from the Zenta controls. With a display it opens
// a window. Without one (or with --session) it renders offscreen, plays a short session with
// real key events, saves screenshots and prints what the host read.
#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <cstdlib>
#include <cstring>

#include "apps/demo/demo_session.h"
#include "apps/demo/demo_window.h"
#include "zenta/qt/translator.h"

namespace {
bool HasDisplay() { return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"); }

// The offscreen platform's notes about window hints and runtime folders are not the user's
// business: keep the printed session readable.
void QuietOffscreenNotes(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains("propagateSizeHints") || message.contains("XDG_RUNTIME_DIR")) return;
  QTextStream(stderr) << qFormatLogMessage(type, context, message) << "\n";
}

// The value after `flag` ("--locale fr_CA"), or "".
QString FlagValue(int argc, char** argv, const char* flag) {
  for (int i = 1; i + 1 < argc; ++i) {
    if (std::strcmp(argv[i], flag) == 0) return QString::fromLocal8Bit(argv[i + 1]);
  }
  return {};
}

bool HasFlag(int argc, char** argv, const char* flag) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], flag) == 0) return true;
  }
  return false;
}
}  // namespace

int main(int argc, char** argv) {
  const bool session = !HasDisplay() || HasFlag(argc, argv, "--session");
  if (!HasDisplay() && !std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  qInstallMessageHandler(QuietOffscreenNotes);
  QApplication app(argc, argv);
  // "--locale fr_CA": the host's locale and the library's translation for it, as a French
  // Canadian host sets them up.
  if (const QString name = FlagValue(argc, argv, "--locale"); !name.isEmpty()) {
    QLocale::setDefault(QLocale(name));
    zenta::qt::InstallTranslator(QLocale(name));
  }
  zenta::demo::DemoWindow window;
  window.resize(1280, 800);
  window.show();
  if (!session) return app.exec();

  QTextStream out(stdout);
  QDir folder(QDir::current().filePath("demo-screenshots"));
  folder.mkpath(".");
  zenta::demo::DemoSession played(window, folder);
  QStringList shots = played.Play();

  out << "Played a short session on the bill-payment screen (" << app.platformName() << " platform).\n\n";
  out << "Screenshots saved in " << QDir::toNativeSeparators(folder.absolutePath()) << ":\n";
  for (const QString& shot : shots) out << "  " << QFileInfo(shot).fileName() << "\n";
  out << "\nValues the host read:\n";
  for (const QString& line : window.HostValues()) out << "  " << line << "\n";
  out << "\nWhat the session checked:\n";
  for (const QString& line : played.Notes()) out << "  " << line << "\n";
  out << "\nEvents the host received:\n";
  for (const QString& line : window.EventLog()) out << "  " << line << "\n";
  out.flush();
  return played.Complete() && shots.size() == 17 ? EXIT_SUCCESS : EXIT_FAILURE;
}
