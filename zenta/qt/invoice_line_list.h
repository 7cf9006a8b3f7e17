#pragma once

/// @file
/// InvoiceLineList, the lines of one invoice's split as InvoiceRecord holds them.

#include <QMetaType>
#include <QVariantList>
#include <memory>

/// @cond internal
namespace zenta {
class InvoiceLineBlock;
}
/// @endcond

namespace zenta::qt {

/// The lines of one invoice's split, as InvoiceRecord::Distributions holds them: shared with
/// the list (a later edit of the list does not change them) and turned into a QVariantList of
/// "GLAccount", "Amount" maps only when read, so a loop over every invoice pays for the lines
/// it looks at, not for all of them.
class InvoiceLineList {
 public:
  /// No lines.
  InvoiceLineList() = default;
  /// @cond internal
  explicit InvoiceLineList(std::shared_ptr<const InvoiceLineBlock> block) : block_(std::move(block)) {}
  /// @endcond

  /// How many lines.
  qsizetype size() const;
  /// The lines in line order, each a map with "GLAccount" (QString) and "Amount"
  /// (zenta::Currency).
  QVariantList ToList() const;
  /// Same lines: account and amount, in order.
  friend bool operator==(const InvoiceLineList& a, const InvoiceLineList& b);

  /// Lets QVariant::toList(), value<QVariantList>() and canConvert<QVariantList>() read one.
  static void Register();

 private:
  std::shared_ptr<const InvoiceLineBlock> block_;
};

}  // namespace zenta::qt

Q_DECLARE_METATYPE(zenta::qt::InvoiceLineList)
