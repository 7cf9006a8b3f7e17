#pragma once

#include <QColor>
#include <QDate>
#include <QLocale>
#include <QMetaType>
#include <QPalette>
#include <QString>
#include <QVariant>
#include <optional>
#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/ole_color.h"
#include "zenta/core/variant.h"
#include "zenta/qt/metatypes.h"

namespace zenta::qt {

// Registers a conversion unless one is there already: a Designer plugin and the program that
// loads it may each carry a copy of the library, and Qt warns about a second registration.
template <typename From, typename To, typename Convert>
void RegisterConverterOnce(Convert convert) {
  if (!QMetaType::hasRegisteredConverterFunction<From, To>()) QMetaType::registerConverter<From, To>(convert);
}

// How the library's values cross into Qt, in one place:
// - Text is UTF-8 on our side and QString on Qt's; malformed UTF-8 becomes U+FFFD.
// - Currency stays exact: as text it is the invariant "12.5" form, and in a QVariant it travels
//   as zenta::Currency (convertible to QString, and to double for display-only use); text that
//   is not an amount fails the conversion.
// - Date is a QDate; the zero date ("no date") is a null QDate and back.
// - Variants keep their type through QVariant: 16-bit integers as short, objects as ObjectRef.
// - OLE colours are QColors; a system colour reads as the palette colour of the role it names.
QString ToQString(const std::string& text);
std::string FromQString(const QString& text);

QString ToQString(Currency value);
// Invariant text only ("." is the point); nullopt for anything else or out of range.
std::optional<Currency> CurrencyFromQString(const QString& text);

// An amount as the payer reads it under `locale`: "1234.50" shows as "1 234,50" in French
// Canada (grouped with the locale's separator unless its number options omit it), and as
// written under a locale whose point is ".". Text that is not a plain amount (a caption,
// "Total") is returned unchanged. For display only: what is typed and stored keeps ".".
QString LocalAmountText(const QString& text, const QLocale& locale);

QDate ToQDate(Date date);
Date FromQDate(const QDate& date);
// A date a host gives the date field named `field`: a null QDate is no date, and a date outside
// years 100 to 9999 raises Date::kOutOfRange.
Date FromQDate(const QDate& date, const std::string& field);

QVariant ToQVariant(const Variant& value);
Variant FromQVariant(const QVariant& value);

QColor ToQColor(OleColor color, const QPalette& palette);
OleColor FromQColor(const QColor& color);
// Black or white, whichever stands out more against `back` by relative luminance: the text on
// a background a host chose without choosing the text's colour.
QColor ReadableTextOn(const QColor& back);
// The palette role a system colour stands for, or nullopt for an RGB colour.
std::optional<QPalette::ColorRole> PaletteRoleOf(OleColor color);

}  // namespace zenta::qt
