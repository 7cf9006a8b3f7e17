#pragma once

namespace zenta::qt {

// Makes assistive tools read a date field's inner edit by the field's name and as a date:
// "2026/11/20", a partial date as shown with its blanks ("2026/11/__"), and an empty field as
// empty, never the mask's bare slashes. Text set through them goes into the field as typed;
// the field's rules run when the focus leaves it. Installing again does nothing.
void InstallAccessibleDates();

}  // namespace zenta::qt
