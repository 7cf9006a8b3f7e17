#include <QHeaderView>
#include <QImage>
#include <QScrollBar>

#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/platform/array_2d.h"
#include "zenta/qt/toolkit/qt_grid_view.h"

namespace zenta::qt {

using testing::As;
using testing::Type;

namespace {
constexpr OleColor kRed = Rgb(255, 0, 0);
constexpr OleColor kWhite = Rgb(255, 255, 255);

// The leftmost and rightmost x of pixels of `color` inside `band`, or {-1, -1}.
std::pair<int, int> SpanOf(const QImage& image, const QRect& band, QColor color) {
  int left = -1;
  int right = -1;
  for (int y = band.top(); y <= band.bottom(); ++y) {
    for (int x = band.left(); x <= band.right(); ++x) {
      if (image.pixelColor(x, y) != color) continue;
      if (left < 0 || x < left) left = x;
      right = std::max(right, x);
    }
  }
  return {left, right};
}

int Count(const QImage& image, const QRect& area, QColor color) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) count += image.pixelColor(x, y) == color ? 1 : 0;
  }
  return count;
}
}  // namespace

// A grid of: account (text), amount (number), a button column; driven by real clicks and keys.
class QtGridViewTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  QtGridView* view_ = nullptr;
  std::vector<int> clicked_;

  platform::GridEngine& Engine() { return view_->Engine(); }

  void Bind(int rows) {
    auto table = std::make_shared<platform::Array2D>(0, rows - 1, 0, 2);
    for (int row = 0; row < rows; ++row) {
      table->Set(row, 0, std::string("4000"));
      table->Set(row, 1, std::string(row % 2 == 0 ? "5.00" : "-5.00"));
      table->Set(row, 2, std::string("..."));
    }
    Engine().Bind(table);
  }

  QRect CellRect(int row, int column) const { return view_->visualRect(view_->model()->index(row, column)); }

  void Click(int row, int column) {
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, CellRect(row, column).center());
    QCoreApplication::processEvents();
  }

  QImage Viewport() const { return view_->viewport()->grab().toImage(); }

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    view_ = &As<QtGridView>(window_->Surface().AddGrid({"grid", {0, 0, 4800, 2400}}, 3));
    Engine().SetColumn(0, {.caption = "Account", .width = 1440});
    Engine().SetColumn(1, {.caption = "Amount", .kind = platform::ColumnKind::Number, .width = 1440});
    Engine().SetColumn(2, {.caption = "", .kind = platform::ColumnKind::Button, .width = 480});
    clicked_.clear();
    Engine().Handlers().button_click = [this](int column) { clicked_.push_back(column); };
    Bind(3);
    QVERIFY(window_->Show());
  }

  void cleanup() { window_.reset(); }

  void theFooterRowAppearsWithTextAndFollowsTheColumnWidths() {
    const int full = view_->viewport()->height();
    platform::GridColors colors;
    colors.footer_back = kWhite;
    colors.footer_fore = kRed;
    Engine().SetColors(colors);
    Engine().SetFooterText(1, "10.00");
    QCoreApplication::processEvents();
    const int footer = view_->verticalHeader()->defaultSectionSize();
    QCOMPARE(view_->viewport()->height(), full - footer);  // the footer takes a row off the rows

    auto text_span = [&] {
      const QImage image = view_->grab().toImage();
      const QRect area = view_->viewport()->geometry();
      return SpanOf(image, QRect(area.left(), area.bottom() + 2, area.width(), footer - 2), QColor(255, 0, 0));
    };
    const auto [left, right] = text_span();
    QVERIFY2(left >= 0, "the footer text is painted");
    const int amount_left = view_->viewport()->geometry().left() + view_->columnViewportPosition(1);
    QVERIFY(left >= amount_left);
    QVERIFY(right < amount_left + view_->columnWidth(1));

    const int before = view_->columnWidth(0);
    Engine().SetColumnWidth(0, 2880);
    QCoreApplication::processEvents();
    const int moved = view_->columnWidth(0) - before;
    QVERIFY(moved > 0);
    const auto [left_after, right_after] = text_span();
    QCOMPARE(left_after, left + moved);  // right-aligned under the amount column, which moved
    QCOMPARE(right_after, right + moved);
  }

  void typingOpensAnEditorPaintedWithItsCaretAndSelection() {
    Click(1, 1);
    QVERIFY(view_->hasFocus());
    const QImage idle = Viewport();
    Type("12");
    QVERIFY(Engine().IsEditing());
    QCOMPARE(Engine().EditText(), std::string("12"));
    QCOMPARE(view_->model()->index(1, 1).data().toString(), QString("12"));

    const QColor highlight = view_->palette().color(QPalette::Highlight);
    const QRect cell = CellRect(1, 1);
    const QImage caret = Viewport();
    QVERIFY(caret != idle);
    const int frame = Count(caret, cell, highlight);
    QVERIFY2(frame > 0, "the editing cell is framed");
    QVERIFY2(frame < cell.width() * cell.height() / 4, "an edit, not a selected cell");

    Engine().SetSelection(0, 2);
    QCoreApplication::processEvents();
    QVERIFY(Count(Viewport(), cell, highlight) > frame + 20);  // the selected characters are filled

    testing::Press(Qt::Key_Escape);
    QVERIFY(!Engine().IsEditing());
    QCOMPARE(view_->model()->index(1, 1).data().toString(), QString("-5.00"));
  }

  void aButtonCellIsPaintedAndItsClickReachesTheEngine() {
    const QRect cell = CellRect(0, 2);
    const QImage image = Viewport();
    const QColor base = view_->palette().color(QPalette::Base);
    QVERIFY2(Count(image, cell.adjusted(2, 2, -2, -2), base) < cell.width() * cell.height() / 2,
             "a button face, not an empty cell");
    Click(0, 2);
    QCOMPARE(clicked_, std::vector<int>{2});
    QVERIFY(!Engine().IsEditing());
  }

  void rowColoursAndStyleRulesReachThePaintedCells() {
    platform::GridColors colors;
    colors.even_row_back = Rgb(240, 240, 240);
    colors.odd_row_back = Rgb(255, 255, 224);
    colors.header_back = Rgb(0, 0, 128);
    Engine().SetColors(colors);
    Engine().AddColumnStyle(1, {"-*", kRed, std::nullopt});
    QCoreApplication::processEvents();
    auto* model = view_->model();
    QCOMPARE(model->index(0, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(240, 240, 240));
    QCOMPARE(model->index(1, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(255, 255, 224));
    QCOMPARE(model->index(0, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));  // readable on light grey
    QCOMPARE(model->index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
    QVERIFY(Count(Viewport(), CellRect(1, 1), QColor(255, 0, 0)) > 0);
    QVERIFY(view_->horizontalHeader()->styleSheet().contains("#000080"));
  }

  void aCaptionTakesSpareRoomButNeverWidensTheGridPastItsView() {
    Engine().SetColumnCaption(0, "General Ledger Account No.");
    QCoreApplication::processEvents();
    QVERIFY(view_->columnWidth(0) > 1440 * view_->logicalDpiX() / 1440);
    QCOMPARE(view_->columnWidth(0), view_->horizontalHeader()->sectionSizeHint(0));
    QCOMPARE(view_->model()->headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString(),
             QString("General Ledger Account No."));

    Engine().SetColumnCaption(0, QString(200, 'W').toStdString());
    QCoreApplication::processEvents();
    QVERIFY(view_->columnWidth(0) < view_->horizontalHeader()->sectionSizeHint(0));
    QVERIFY(!view_->horizontalScrollBar()->isVisible());
  }

  void aLongListKeepsFixedRowsAndNoMeasuredColumns() {
    Bind(32767);
    QCOMPARE(view_->model()->rowCount(), 32767);
    QCOMPARE(view_->verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    for (int column = 0; column < 3; ++column) {
      QVERIFY(view_->horizontalHeader()->sectionResizeMode(column) != QHeaderView::ResizeToContents);
    }
    QVERIFY(view_->model()->index(0, 0).data(Qt::EditRole).isNull());  // nothing stored in the model
    Engine().SetCurrentRow(32766);
    QCoreApplication::processEvents();
    QCOMPARE(view_->currentIndex().row(), 32766);
    QVERIFY(view_->viewport()->rect().intersects(CellRect(32766, 0)));
    QCOMPARE(view_->model()->index(32766, 1).data().toString(), QString("5.00"));
  }

  void pageKeysMoveTheCurrentRowByTheRowsInViewAndStopAtTheEnds() {
    Bind(100);
    Click(0, 0);
    const int page = view_->viewport()->height() / view_->verticalHeader()->defaultSectionSize() - 1;
    QVERIFY(page > 1);
    testing::Press(Qt::Key_PageDown);
    QCOMPARE(Engine().CurrentRow(), std::optional<int>(page));
    QVERIFY(view_->viewport()->rect().intersects(CellRect(page, 0)));
    for (int i = 0; i < 100; ++i) testing::Press(Qt::Key_PageDown);
    QCOMPARE(Engine().CurrentRow(), std::optional<int>(99));
    testing::Press(Qt::Key_PageUp);
    QCOMPARE(Engine().CurrentRow(), std::optional<int>(99 - page));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtGridViewTest)
#include "qt_grid_view_test.moc"
