#pragma once

#include <QTableView>
#include <functional>

#include "zenta/platform/grid.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

class GridEngineModel;
class GridFooter;
class OfferList;
class CellActionButton;

// A grid on a QTableView: a thin view over platform::GridEngine. The model reads the engine on
// demand (no per-cell items, fixed row heights), so long lists stay cheap; keys, clicks and
// focus changes go to the engine, and an open edit is painted in its cell from the engine's
// edit text. Under the rows a footer row shows each column's footer text at the column's width
// and scroll position. Posted grid messages are queued calls on this widget.
class QtGridView : public QTableView, public QtWidgetBase<platform::Grid>, public platform::GridView {
 public:
  QtGridView(QWidget* parent, const platform::WidgetSpec& definition, int column_count);
  ~QtGridView() override;

  platform::GridEngine& Engine() override { return *engine_; }
  const platform::GridEngine& Engine() const override { return *engine_; }
  int FirstRowTop() const override;
  int RowHeight() const override;

  void RowsChanged() override;
  void RowChanged(int row) override;
  void ColumnsChanged() override;
  void CurrentCellChanged() override;
  void EditorOpened() override;
  void EditorChanged() override { viewport()->update(); }
  void EditorClosed() override;
  bool HasFocus() const override { return hasFocus(); }
  void TakeFocus() override { setFocus(Qt::OtherFocusReason); }
  void Post(std::function<void()> action) override;
  int VisibleRows() const override;
  void ShowOffers(const std::vector<std::string>& offers, int current) override;
  void OnOfferClicked(std::function<void(int offer)> handler) override;

  // The width in pixels that shows every visible column with its whole caption.
  int CaptionsWidth() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool event(QEvent* event) override;
  // Tells assistive tools of the new current cell by its place among the shown columns.
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void updateGeometries() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int ToTwips(int pixels) const;
  void ApplyColors();
  void FitColumns();
  bool HasFooter() const;
  GridEngineModel* model_;
  GridFooter* footer_ = nullptr;
  OfferList* offers_ = nullptr;  // made on first use
  CellActionButton* cell_action_ = nullptr;
  std::unique_ptr<platform::GridEngine> engine_;
  bool moving_ = false;
};

}  // namespace zenta::qt
