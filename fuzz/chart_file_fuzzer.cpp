// Any bytes as a chart file: read without a fault, every account kept is one a payer could type
// into the account cell, and every refusal names a line of the file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "zenta/core/utf8.h"
#include "zenta/entry/account_number.h"
#include "zenta/entry/chart_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const zenta::entry::ChartFile file = zenta::entry::ParseChartFile(text);
  for (const zenta::GLAccount& account : file.chart.Accounts()) {
    if (account.number.empty() || zenta::utf8::Length(account.number) > zenta::entry::kMaxAccountLength) std::abort();
    if (zenta::entry::AccountNumberText(account.number) != account.number) std::abort();
    if (file.chart.Find(account.number) != &account) std::abort();
  }
  std::size_t lines = 1;
  for (char c : text) lines += c == '\n' || c == '\r';
  std::size_t previous = 0;
  for (const zenta::entry::RefusedLine& refused : file.refused) {
    if (refused.line <= previous || refused.line > lines || refused.reason.empty()) std::abort();
    previous = refused.line;
  }
  return 0;
}
