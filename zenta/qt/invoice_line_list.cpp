#include "zenta/qt/invoice_line_list.h"

#include <map>
#include <mutex>

#include "zenta/controls/invoice_entry/invoice_line_block.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

qsizetype InvoiceLineList::size() const { return block_ ? static_cast<qsizetype>(block_->LineCount()) : 0; }

QVariantList InvoiceLineList::ToList() const {
  QVariantList lines;
  if (!block_) return lines;
  lines.reserve(size());
  for (const InvoiceLine& line : block_->Lines()) {
    // Keys inserted in order: the map's tree is built without rebalancing searches.
    std::map<QString, QVariant> entries;
    entries.emplace_hint(entries.end(), QStringLiteral("Amount"), QVariant::fromValue(line.Amount));
    entries.emplace_hint(entries.end(), QStringLiteral("GLAccount"), ToQString(line.GLAccount));
    lines.append(QVariantMap(std::move(entries)));
  }
  return lines;
}

bool operator==(const InvoiceLineList& a, const InvoiceLineList& b) {
  if (a.block_ == b.block_) return true;
  if (a.size() != b.size()) return false;
  if (a.size() == 0) return true;
  const auto& left = a.block_->Lines();
  const auto& right = b.block_->Lines();
  for (std::size_t i = 0; i < left.size(); ++i) {
    if (left[i].GLAccount != right[i].GLAccount || left[i].Amount != right[i].Amount) return false;
  }
  return true;
}

void InvoiceLineList::Register() {
  static std::once_flag once;
  std::call_once(once, [] {
    qRegisterMetaType<InvoiceLineList>("zenta::qt::InvoiceLineList");
    RegisterConverterOnce<InvoiceLineList, QVariantList>(&InvoiceLineList::ToList);
  });
}

}  // namespace zenta::qt
