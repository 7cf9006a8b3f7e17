#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

class QTableView;

namespace zenta::qt {

// The completion offers of a grid cell: a small list laid over the window just under the cell.
// It never takes the focus, so typing goes on in the cell; the grid's control moves the mark
// with the keys it sees, and a click reports the offer.
class OfferList : public QListWidget {
 public:
  explicit OfferList(QTableView& grid);

  void Show(const std::vector<std::string>& offers, int current);
  void SetClickHandler(std::function<void(int)> handler) { clicked_ = std::move(handler); }

 private:
  void PlaceUnderCurrentCell();

  QTableView& grid_;
  std::function<void(int)> clicked_;
};

}  // namespace zenta::qt
