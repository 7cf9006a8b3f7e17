#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "zenta/platform/grid.h"
#include "zenta/platform/headless/widget_base.h"

namespace zenta::headless {

// A grid in memory: a thin view over platform::GridEngine. Keys and characters that reach it
// go to the engine; focus changes end the edit and store the row; posted grid messages queue
// on the Form and run after the user's action. Rows sit at fixed twips positions.
class GridWidget : public WidgetBase<platform::Grid>, public platform::GridView {
 public:
  static constexpr int kHeaderHeight = 285;
  static constexpr int kRowHeight = 255;

  GridWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, int column_count);

  platform::GridEngine& Engine() override { return engine_; }
  const platform::GridEngine& Engine() const override { return engine_; }
  int FirstRowTop() const override { return Rect().top + kHeaderHeight; }
  int RowHeight() const override { return kRowHeight; }
  int VisibleRows() const override { return std::max(1, (Rect().height - kHeaderHeight) / kRowHeight); }

  // GridView: nothing to repaint in memory.
  void RowsChanged() override {}
  void RowChanged(int /*row*/) override {}
  void ColumnsChanged() override {}
  void CurrentCellChanged() override {}
  void EditorOpened() override {}
  void EditorChanged() override {}
  void EditorClosed() override {}
  bool HasFocus() const override { return WidgetBase::HasFocus(); }
  void TakeFocus() override { SetFocus(); }
  void Post(std::function<void()> action) override;

  // The offers the control shows under the current cell, the marked one, and a click on one.
  void ShowOffers(const std::vector<std::string>& offers, int current) override {
    offers_ = offers;
    current_offer_ = offers.empty() ? -1 : current;
  }
  void OnOfferClicked(std::function<void(int offer)> handler) override { offer_clicked_ = std::move(handler); }
  const std::vector<std::string>& Offers() const { return offers_; }
  int CurrentOffer() const { return current_offer_; }
  void ClickOffer(int offer) {
    if (offer_clicked_ && offer >= 0 && offer < static_cast<int>(offers_.size())) offer_clicked_(offer);
  }

  void HandleKeyDown(platform::KeyDown& key) override { engine_.KeyDown(key); }
  void HandleCharacter(char32_t character) override { engine_.TypeCharacter(character); }
  void FocusGained() override { engine_.FocusGained(); }
  void FocusLost() override { engine_.FocusLost(); }

 private:
  platform::GridEngine engine_;
  std::vector<std::string> offers_;
  int current_offer_ = -1;
  std::function<void(int)> offer_clicked_;
};

}  // namespace zenta::headless
