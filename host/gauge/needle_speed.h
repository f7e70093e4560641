/// How fast a needle may go.
#pragma once

#include "interface/panel_interface.h"

namespace host {

/// How far a needle at the value `from` comes towards `to` in so many seconds; both must be numbers.
/// A needle without a speed limit is there at once; one without a table goes the short way round.
double needle_value_after(const NeedlePart& needle, double from, double to, double seconds);

}  // namespace host
