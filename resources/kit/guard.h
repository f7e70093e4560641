/// Guarded switches: a red cover hinged at its top over a lever in a dark well.
///
/// Guard and switch are pictures at one place. The well with the lever down belongs to the plate,
/// so that the picture of a switch that is off is empty; the guard when closed hides the well; when
/// open it stands up from its hinge and leaves the well in sight.
#pragma once

#include "resources/kit/paint.h"

namespace artwork {

/// The part of a guarded switch's picture, `frame`, in which the well lies.
Box guarded_well(Box frame);

/// The hub of the lever in the well.
Point guarded_hub(Box frame);

/// The well and the lever at rest: on the plate.
void guarded_switch_off(const Canvas& canvas, Box frame);

/// The well and the lever up: the picture of a switch that is on.
void guarded_switch_on(const Canvas& canvas, Box frame);

/// The well and a small rotary knob turned to `position` of four: from the first, which is off, over the right
/// to straight up.
void guarded_rotary(const Canvas& canvas, Box frame, int position);

void guard_closed(const Canvas& canvas, Box frame);
void guard_open(const Canvas& canvas, Box frame);

}  // namespace artwork
