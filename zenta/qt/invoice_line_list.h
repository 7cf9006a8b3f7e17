#pragma once

#include <QMetaType>
#include <QVariantList>
#include <memory>

namespace zenta {
class InvoiceLineBlock;
}

namespace zenta::qt {

// The "Distributions" value of InvoiceValues: the invoice's lines, shared with the list and
// turned into a QVariantList of {GLAccount, Amount} maps only when the host reads them, so a
// loop over every invoice pays for the lines it looks at, not for all of them.
class InvoiceLineList {
 public:
  InvoiceLineList() = default;
  explicit InvoiceLineList(std::shared_ptr<const InvoiceLineBlock> block) : block_(std::move(block)) {}

  qsizetype size() const;
  QVariantList ToList() const;
  friend bool operator==(const InvoiceLineList& a, const InvoiceLineList& b);

  // Lets QVariant::toList(), value<QVariantList>() and canConvert<QVariantList>() read it.
  static void Register();

 private:
  std::shared_ptr<const InvoiceLineBlock> block_;
};

}  // namespace zenta::qt

Q_DECLARE_METATYPE(zenta::qt::InvoiceLineList)
