#pragma once

namespace zenta::qt {

// Makes assistive tools read every amount field as a number: its accessible value is the amount
// (none when the field is empty), its value text the amount as the locale writes it, and its
// text, caret and selection stay readable as a line edit's. Text or a number set through them
// is typed into the field under its rules. Installing again does nothing.
void InstallAccessibleAmounts();

}  // namespace zenta::qt
