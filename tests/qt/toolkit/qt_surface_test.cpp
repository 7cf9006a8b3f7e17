#include <QCheckBox>

#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {

using testing::As;
using testing::Press;
using testing::Type;

// A surface of: amount, caption, check box kept out of the tab order, text box, date.
class QtSurfaceTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  QtSurface* surface_ = nullptr;
  QtNumberEdit* amount_ = nullptr;

  QtSurface& Build() {
    surface_ = &window_->Surface();
    amount_ = &As<QtNumberEdit>(surface_->AddNumberEdit({"amount", {0, 0, 1440, 300}}));
    surface_->AddLabel({"caption", {1500, 0, 1440, 240}}, "Amount");
    surface_->AddCheckBox({"check", {0, 400, 1440, 300}, "", false}, "Statement only");
    surface_->AddTextBox({"comments", {0, 800, 1440, 300}});
    surface_->AddDateEdit({"due", {0, 1200, 1700, 300}});
    return *surface_;
  }

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    Build();
    QVERIFY(window_->Show());
    amount_->SetFocus();
  }

  void cleanup() { window_.reset(); }

  void childrenSitAtTheirTwipsThroughTheLogicalDpi() {
    const int dpi = surface_->logicalDpiX();
    QtSurface& surface = *surface_;
    QFont small = surface.font();
    small.setPointSize(5);  // no wider than the font the rectangles were drawn for
    surface.setFont(small);
    QWidget& edit = As<QWidget>(surface.AddTextBox({"placed", {1440, 720, 2880, 360}}));
    surface.setMinimumSize(0, 0);
    surface.resize(1, surface.height());
    QCOMPARE(edit.geometry(), QRect(dpi, dpi / 2, 2 * dpi, dpi / 4));
  }

  void aLargerFontOrAWiderSurfaceWidensTheFields() {
    QtSurface& surface = *surface_;
    QWidget& edit = As<QWidget>(surface.AddTextBox({"placed", {1440, 720, 2880, 360}}));
    surface.setMinimumSize(0, 0);
    surface.resize(1, surface.height());
    const QRect before = edit.geometry();
    QFont large = surface.font();
    large.setPointSize(large.pointSize() * 2);
    surface.setFont(large);
    QVERIFY(edit.width() > before.width());
    QVERIFY(edit.height() > before.height());
    QVERIFY(surface.FittedSize(1440, 1440).width() > surface.ToPixels(1440));
    surface.setFont(QFont());
    surface.resize(4 * surface.width() + 2000, surface.height());
    QVERIFY(edit.width() > before.width());
  }

  void widthAndHeightAreTwipsAndResizeNotifies() {
    int resized = 0;
    surface_->OnResize([&] { ++resized; });
    surface_->SetWidth(7200);
    surface_->SetHeight(4320);
    QCOMPARE(surface_->width(), 7200 * surface_->logicalDpiX() / 1440);
    QCOMPARE(surface_->Width(), 7200);
    QCOMPARE(surface_->Height(), 4320);
    QCOMPARE(resized, 2);
  }

  void tabFollowsCreationOrderSkippingNonStops() {
    QStringList visited{QString::fromStdString(surface_->ActiveChildName())};
    for (int i = 0; i < 3; ++i) {
      Press(Qt::Key_Tab);
      visited << testing::FocusName();
    }
    QCOMPARE(visited, QStringList({"amount", "comments", "due_text", "outside"}));
  }

  void thePreviewSeesKeysAsControlsTestThem_data() {
    QTest::addColumn<int>("qt_key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QList<int>>("seen");  // key code * 10 + shift bits, modifier keys included
    const int shift = Qt::ShiftModifier;
    QTest::newRow("enter") << int(Qt::Key_Return) << 0 << QList<int>{130};
    QTest::newRow("keypad enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << QList<int>{130};
    QTest::newRow("shift+enter") << int(Qt::Key_Return) << shift << QList<int>{161, 131};
    QTest::newRow("ctrl+enter") << int(Qt::Key_Return) << int(Qt::ControlModifier) << QList<int>{172, 132};
    QTest::newRow("letter as its capital") << int(Qt::Key_A) << 0 << QList<int>{650};
    QTest::newRow("ctrl+letter") << int(Qt::Key_C) << int(Qt::ControlModifier) << QList<int>{172, 672};
    QTest::newRow("shifted digit") << int(Qt::Key_ParenLeft) << shift << QList<int>{161, 571};
    QTest::newRow("point is not Delete") << int(Qt::Key_Period) << 0 << QList<int>{1900};
  }

  void thePreviewSeesKeysAsControlsTestThem() {
    QFETCH(int, qt_key);
    QFETCH(int, modifiers);
    QFETCH(QList<int>, seen);
    QList<int> previewed;
    surface_->OnKeyDown([&](platform::KeyDown& key) { previewed << key.key_code * 10 + key.shift; });
    QTest::keyClick(amount_, Qt::Key(qt_key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(previewed, seen);
  }

  void thePreviewCanDiscardAKeyBeforeTheChildSeesIt() {
    surface_->OnKeyDown([&](platform::KeyDown& key) {
      if (key.key_code == '9' || key.key_code == platform::keys::kF2) key.key_code = 0;
    });
    Type("192");
    Press(Qt::Key_F2);
    QCOMPARE(amount_->Text(), std::string("12"));
  }

  void injectedKeysComeAfterTheHandlerReturns() {
    QtHost host(*surface_);
    QStringList log;
    surface_->OnKeyDown([&](platform::KeyDown& key) {
      if (key.key_code != platform::keys::kEnter || key.shift != platform::kNoShift) return;
      key.key_code = 0;
      host.InjectKeys("{TAB}");
      log << "handler, in " + testing::FocusName();
    });
    amount_->OnFocusLost([&] { log << "amount lost"; });
    QTest::keyClick(amount_, Qt::Key_Return);
    log << "returned";
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"handler, in amount", "returned", "amount lost"}));
    QCOMPARE(surface_->ActiveChildName(), std::string("comments"));
    host.InjectKeys("{TAB}{TAB}");
    QCoreApplication::processEvents();
    QCOMPARE(testing::FocusName(), QString("outside"));
    host.InjectKeys("+{TAB}");
    QCoreApplication::processEvents();
    QCOMPARE(surface_->ActiveChildName(), std::string("due"));
    host.InjectKeys("{BOGUS}");  // dropped with a warning, never thrown through the event loop
  }

  void backColourSystemColoursFollowThePalette() {
    surface_->SetBackColor(colors::kButtonFace);
    QCOMPARE(surface_->backgroundRole(), QPalette::Button);
    surface_->SetBackColor(colors::k3DLight);
    QCOMPARE(surface_->backgroundRole(), QPalette::Midlight);
    surface_->SetBackColor(Rgb(10, 20, 30));
    QCOMPARE(surface_->palette().color(surface_->backgroundRole()), QColor(10, 20, 30));
    QCOMPARE(surface_->BackColor(), Rgb(10, 20, 30));
  }

  void enabledIsTheControlsOwnState() {
    window_->Window().setEnabled(false);
    QVERIFY(surface_->Enabled());
    surface_->SetEnabled(false);
    window_->Window().setEnabled(true);
    QVERIFY(!surface_->Enabled());
    QVERIFY(!amount_->isEnabled());
    QVERIFY(amount_->Enabled());  // the child keeps its own state
  }

  void shownIsNotifiedOnce() {
    testing::TestWindow second;
    int shown = 0;
    second.Surface().OnShown([&] { ++shown; });
    QVERIFY(second.Show());
    second.Window().hide();
    second.Window().show();
    QCOMPARE(shown, 1);
  }

  void destroyingTheSurfaceFinishesTheFocusedFieldFirst() {
    bool surface_whole = false;
    amount_->OnFocusLost([&] { surface_whole = surface_->Find("due") != nullptr; });
    delete surface_;
    QVERIFY(surface_whole);
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtSurfaceTest)
#include "qt_surface_test.moc"
