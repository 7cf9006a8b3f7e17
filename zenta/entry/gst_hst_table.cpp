#include "zenta/entry/gst_hst_table.h"

#include "zenta/core/utf8.h"

#include <algorithm>
#include <tuple>

namespace zenta {

namespace {

Date Day(int year, int month, int day) { return *Date::FromYmd(year, month, day); }

Rate Percent(int whole) { return *Rate::FromParts(whole, 2); }

}  // namespace

GstHstTable::GstHstTable(std::vector<Entry> entries) : entries_(std::move(entries)) {
  for (Entry& entry : entries_) entry.province = NormalisedCode(entry.province);
  std::stable_sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
    return std::tie(a.province, a.effective) < std::tie(b.province, b.effective);
  });
}

// Source: Canada Revenue Agency, "GST/HST provincial rates table" and its history of past
// rates (canada.ca, "Charge and collect the tax — Which rate to charge"). GST 5 % from
// 2008-01-01; HST in Ontario 13 % and British Columbia 12 % from 2010-07-01 (BC back to GST
// 2013-04-01); New Brunswick and Newfoundland and Labrador 13 %, 15 % from 2016-07-01; Nova
// Scotia 13 %, 15 % from 2010-07-01, 14 % from 2025-04-01; Prince Edward Island HST 14 % from
// 2013-04-01, 15 % from 2016-10-01.
const GstHstTable& GstHstTable::Canada() {
  static const GstHstTable table([] {
    const Date gst_5 = Day(2008, 1, 1);
    std::vector<Entry> entries;
    for (const char* gst_only : {"AB", "MB", "NT", "NU", "QC", "SK", "YT"}) {
      entries.push_back({gst_only, gst_5, Percent(5)});
    }
    entries.push_back({"BC", gst_5, Percent(5)});
    entries.push_back({"BC", Day(2010, 7, 1), Percent(12)});
    entries.push_back({"BC", Day(2013, 4, 1), Percent(5)});
    entries.push_back({"ON", gst_5, Percent(5)});
    entries.push_back({"ON", Day(2010, 7, 1), Percent(13)});
    for (const char* atlantic : {"NB", "NL"}) {
      entries.push_back({atlantic, gst_5, Percent(13)});
      entries.push_back({atlantic, Day(2016, 7, 1), Percent(15)});
    }
    entries.push_back({"NS", gst_5, Percent(13)});
    entries.push_back({"NS", Day(2010, 7, 1), Percent(15)});
    entries.push_back({"NS", Day(2025, 4, 1), Percent(14)});
    entries.push_back({"PE", gst_5, Percent(5)});
    entries.push_back({"PE", Day(2013, 4, 1), Percent(14)});
    entries.push_back({"PE", Day(2016, 10, 1), Percent(15)});
    return GstHstTable(std::move(entries));
  }());
  return table;
}

std::optional<Rate> GstHstTable::RateOn(std::string_view province, Date day) const {
  const std::string code = NormalisedCode(province);
  std::optional<Rate> rate;
  for (const Entry& entry : entries_) {
    if (entry.province == code && entry.effective <= day) rate = entry.rate;
  }
  return rate;
}

bool GstHstTable::HasProvince(std::string_view province) const {
  const std::string code = NormalisedCode(province);
  return std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) { return entry.province == code; });
}

std::vector<std::string> GstHstTable::Provinces() const {
  std::vector<std::string> codes;
  for (const Entry& entry : entries_) {
    if (codes.empty() || codes.back() != entry.province) codes.push_back(entry.province);
  }
  return codes;
}

std::string GstHstTable::NormalisedCode(std::string_view province) {
  return utf8::ToUpperAscii(utf8::Trim(province));
}

}  // namespace zenta
