#pragma once

namespace zenta::qt {

// Makes assistive tools read a date field's inner edit by the field's name and as a date:
// "2026/11/20", a partial date as shown with its blanks ("2026/11/__"), and an empty field as
// empty, never the mask's bare slashes. Text set through them is typed into the field under its
// rules. Installing again does nothing.
void InstallAccessibleDates();

}  // namespace zenta::qt
