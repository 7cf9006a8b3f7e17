#pragma once

#include <QString>
#include <string>

namespace zenta::qt {

// The text the payer sees for one of the controls' own English texts (captions, tooltips,
// messages, titles): its translation when the host installed one (InstallTranslator), else the
// English exactly as the control gave it. Every Qt widget that shows a control's text asks here.
QString UiText(const std::string& english);

// The translation context of every text of the library.
inline constexpr const char* kTranslationContext = "Zenta";

}  // namespace zenta::qt
