#pragma once

#include <functional>
#include <string>
#include <vector>

#include "zenta/platform/grid_engine.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// A grid widget: a toolkit's view of a GridEngine. Controls drive it through Engine(); the
// widget itself only adds what every widget has (focus, enabled, visible, placement).
class Grid : public Widget {
 public:
  virtual GridEngine& Engine() = 0;
  virtual const GridEngine& Engine() const = 0;
  // The top of the first row and the height of a row, in twips, for placing a window just
  // below a row.
  virtual int FirstRowTop() const = 0;
  virtual int RowHeight() const = 0;

  // Completion: offers listed under the current cell while the payer types, `current` marked
  // (-1: none). An empty list hides them. The list never takes the focus; the control moves
  // the mark and takes an offer from its key handling, or when the list reports a click.
  virtual void ShowOffers(const std::vector<std::string>& offers, int current) = 0;
  virtual void OnOfferClicked(std::function<void(int offer)> handler) = 0;
};

}  // namespace zenta::platform
