#pragma once

#include <QColor>
#include <QDate>
#include <QMetaType>
#include <QPalette>
#include <QString>
#include <QVariant>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/ole_color.h"
#include "zenta/core/variant.h"

Q_DECLARE_METATYPE(zenta::Currency)

namespace zenta::qt {

// How the library's values cross into Qt, in one place:
// - Currency stays exact: it travels in a QVariant as zenta::Currency, which converts to and
//   from QString ("12.5") and converts to double for display-only use.
// - Date is a QDate; the zero date (no date) is a null QDate.
// - OLE colours are QColors; a system colour reads as the palette colour it names today.
// - Text is UTF-8 on our side and QString on Qt's.
QString ToQString(const std::string& text);
std::string FromQString(const QString& text);

QDate ToQDate(Date date);
Date FromQDate(const QDate& date);

QVariant ToQVariant(const Variant& value);
Variant FromQVariant(const QVariant& value);

QColor ToQColor(OleColor color, const QPalette& palette);
OleColor FromQColor(const QColor& color);
// The palette role a system colour maps to, or nullopt for an RGB colour.
std::optional<QPalette::ColorRole> PaletteRoleOf(OleColor color);

// Registers the Currency metatype and its converters; cheap to call again.
void RegisterMetaTypes();

}  // namespace zenta::qt
