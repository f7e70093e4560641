/// Which part of a gauge a person sees under the pointer.
#pragma once

#include <optional>

#include "host/panel/cockpit.h"

namespace host {

/// The number in the chain of the part that is seen at a point of the gauge, in pixels of its
/// background, among those that its words say something of. What is painted there goes first, the
/// topmost of it; then the smallest thing around the point: a lamp that is dark, a drum's window, a
/// needle's dial, and last what shows through the openings of the face. Nothing on bare panel.
std::optional<std::size_t> part_under(const CockpitGauge& gauge, const BitmapStore& bitmaps,
                                      PanelPoint point);

}  // namespace host
