#pragma once

#include <span>
#include <cstdint>
#include <memory>
#include <string>

#include "zenta/platform/field_value.h"
#include "zenta/controls/simple/govt_items_table.h"
#include "zenta/controls/simple/small_control.h"
#include "zenta/core/date.h"
#include "zenta/core/variant.h"

namespace zenta {

// A remittance to a government body: the period it covers, its due date, a statement-only
// flag, comments, an amount, an other amount and up to 26 lettered line items. Statement
// only locks everything but the amount and keeps what the other fields hold.
class GovtDetails : public SmallControl {
 public:
  enum EventNumber { kLostFocusAmount = 1, kGridRowUpdated = 2 };

  class Events {
   public:
    virtual ~Events() = default;
    virtual void LostFocusAmount() {}
    virtual void GridRowUpdated(std::int16_t /*Row*/) {}
  };

  static constexpr int kMinWidth = 1860;
  static constexpr int kMinHeight = 5340;

  // The public properties each child widget holds.
  static std::span<const platform::FieldValue> FieldValues() {
    static constexpr platform::FieldValue kValues[] = {
        {"chkStatementOnly", "StatementOnly"},
        {"chkStatementOnly", "StatementOnlyEnabled"},
        {"dtPeriodFrom", "PeriodFrom"},
        {"dtPeriodFrom", "PeriodFromEnabled"},
        {"dtPeriodTo", "PeriodTo"},
        {"dtPeriodTo", "PeriodToEnabled"},
        {"dtDueDate", "DueDate"},
        {"dtDueDate", "DueDateEnabled"},
        {"grItems", "GridNumberofRows"},
        {"grItems", "GridEnabled"},
        {"txtComments", "Comments"},
        {"txtComments", "CommentsEnabled"},
        {"txtPaymentAmount", "Amount"},
        {"txtPaymentAmount", "AmountEnabled"},
        {"txtOtherAmount", "OtherAmount"},
        {"txtOtherAmount", "OtherAmountEnabled"},
    };
    return kValues;
  }

  GovtDetails(platform::ControlSurface& surface, platform::HostServices& host);

  void SetEventListener(Events* listener) { listener_ = listener; }

  // Dates, amount and comments emptied and 12 empty item rows; the statement-only flag and the
  // other amount keep their values, and the focus stays where it is.
  void Clear();

  Date PeriodFrom() const;
  void SetPeriodFrom(Date value);
  Date PeriodTo() const;
  void SetPeriodTo(Date value);
  Date DueDate() const;
  void SetDueDate(Date value);
  Variant StatementOnly() const;
  void SetStatementOnly(const Variant& value);
  std::string Comments() const;
  void SetComments(const std::string& value);
  Variant OtherAmount() const;
  void SetOtherAmount(const Variant& value);
  Variant Amount() const;
  void SetAmount(const Variant& value);
  std::string GridValues(std::int16_t TheRow);
  void SetGridValues(std::int16_t TheRow, const std::string& value);
  // 1 to 26 rows; anything else raises "Rows must range from 1 to 26" and keeps the table.
  void SetRows(std::int16_t NumberofRows);
  std::int16_t GridNumberofRows() const { return items_.RowCount(); }

  bool StatementOnlyEnabled() const;
  void SetStatementOnlyEnabled(bool enabled);
  bool PeriodFromEnabled() const;
  void SetPeriodFromEnabled(bool enabled);
  bool PeriodToEnabled() const;
  void SetPeriodToEnabled(bool enabled);
  bool DueDateEnabled() const;
  void SetDueDateEnabled(bool enabled);
  bool CommentsEnabled() const;
  void SetCommentsEnabled(bool enabled);
  bool OtherAmountEnabled() const;
  void SetOtherAmountEnabled(bool enabled);
  bool AmountEnabled() const;
  void SetAmountEnabled(bool enabled);
  bool GridEnabled() const;
  void SetGridEnabled(bool enabled);

  void SetFocusPeriodFrom();
  // Focuses the period-from date, as it always has: hosts rely on it.
  void SetFocusPeriodTo();
  void SetFocusDueDate();
  void SetFocusGrid();
  void SetFocusComment();
  void SetFocusAmount();

 protected:
  void ApplyTitleColor() override;
  // The enabled state stays on the surface: a disabled surface already stops input.
  void PropagateEnabled() override {}
  void PropertiesRead() override;
  void Shown() override;
  // The grid moves on Enter itself, through its amounts.
  bool EnterMovesOnFrom(const std::string& active_child) const override { return active_child != "grItems"; }
  std::span<const platform::FieldValue> Fields() const override { return FieldValues(); }

 private:
  struct Widgets {
    platform::CheckBox& statement_only;
    platform::DateEdit& period_from;
    platform::DateEdit& period_to;
    platform::DateEdit& due_date;
    platform::Grid& items;
    platform::TextBox& comments;
    platform::NumberEdit& payment_amount;
    platform::NumberEdit& other_amount;
  };
  static Widgets Build(platform::ControlSurface& surface);
  void ApplyStatementOnly();
  void FilterCommentKey(platform::KeyPress& press) const;

  Widgets w_;
  GovtItemsTable items_;
  Events* listener_ = nullptr;
};

}  // namespace zenta
