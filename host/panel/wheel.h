/// The wheel over a gauge: what its records say, and what its words say of the other knobs.
#pragma once

#include "host/panel/cockpit.h"

namespace host {

/// Turns the wheel, away from the person is positive. Returns false where it turns nothing.
bool turn_wheel(const CockpitGauge& gauge, PanelPoint point, int notches);

/// Whether the wheel turns what the area works.
bool takes_wheel(const CockpitGauge& gauge, const HotArea& area);

}  // namespace host
