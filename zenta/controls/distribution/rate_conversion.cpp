#include "zenta/controls/distribution/rate_conversion.h"

namespace zenta {

Currency ToHomeAmount(Currency foreign, const Rate& rate, const char* source) { return rate.ToHome(foreign, source); }

Currency FromHomeAmount(Currency home, const Rate& rate, const char* source) { return rate.FromHome(home, source); }

}  // namespace zenta
