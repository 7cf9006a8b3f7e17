#pragma once

/// @file
/// ApplicationContext(), what the controls of a Qt application share.

#include "zenta/controls/distribution/library_context.h"

namespace zenta::qt {

/// The library context of a Qt application: the one distribution window (a QDialog made on
/// first use and kept, so its fields keep their last values between callers) and the
/// library-wide currency code, shared by every PaymentDetails and InvoiceEntry of the
/// application. It lives as long as the QApplication and goes with it; the Qt control classes
/// find it themselves, so a host (or a Designer form) creates them with a parent only. A host
/// reads the window's state through it, e.g. `ApplicationContext().HasDistribution()`.
/// Call from the GUI thread once a QApplication exists.
LibraryContext& ApplicationContext();

}  // namespace zenta::qt
