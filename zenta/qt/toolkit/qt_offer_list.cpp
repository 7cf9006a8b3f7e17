#include "zenta/qt/toolkit/qt_offer_list.h"

#include <QTableView>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {
constexpr int kShownOffers = 8;
}

OfferList::OfferList(QTableView& grid) : QListWidget(grid.window()), grid_(grid) {
  setObjectName(QStringLiteral("offers"));
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  hide();
  connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    if (clicked_) clicked_(row(item));
  });
}

void OfferList::Show(const std::vector<std::string>& offers, int current) {
  if (offers.empty()) {
    hide();
    clear();
    return;
  }
  clear();
  for (const std::string& offer : offers) addItem(ToQString(offer));
  setCurrentRow(current);
  if (current < 0) clearSelection();
  PlaceUnderCurrentCell();
  show();
  raise();
}

void OfferList::PlaceUnderCurrentCell() {
  const QRect cell = grid_.visualRect(grid_.currentIndex());
  const QPoint below = grid_.viewport()->mapTo(grid_.window(), cell.bottomLeft());
  const int rows = std::min(count(), kShownOffers);
  const int height = rows * sizeHintForRow(0) + 2 * frameWidth();
  const int width = std::max(cell.width(), sizeHintForColumn(0) + 2 * frameWidth() + 4);
  setGeometry(below.x(), below.y() + 1, width, height);
}

}  // namespace zenta::qt
