#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "zenta/platform/array_2d.h"

namespace zenta::qt {

// A table model straight on a 2-D array: one model row per array row, one column per array
// column, cells shown as their text. Pending (uncommitted) cell texts come from an overlay so
// the grid shows what is typed before it reaches the array.
class ArrayTableModel : public QAbstractTableModel {
 public:
  using Overlay = std::function<std::optional<std::string>(int row, int column)>;

  ArrayTableModel(QObject* parent, int columns);

  void SetArray(std::shared_ptr<platform::Array2D> array);
  const std::shared_ptr<platform::Array2D>& Array() const { return array_; }
  void SetOverlay(Overlay overlay) { overlay_ = std::move(overlay); }
  // The array changed shape (rows added or removed): every view re-reads it.
  void Reset();
  void CellsChanged(int model_row);
  void SetCaption(int column, const QString& caption);
  QString Caption(int column) const;

  // Array row of a model row, and back.
  int BookmarkOf(int model_row) const;
  int ModelRowOf(int bookmark) const;
  std::string StoredText(int bookmark, int column) const;

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::shared_ptr<platform::Array2D> array_;
  std::vector<QString> captions_;
  Overlay overlay_;
};

}  // namespace zenta::qt
