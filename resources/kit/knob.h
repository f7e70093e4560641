/// Knobs: knurled black mouldings with a white line, valve knobs with a flow bar, push buttons.
#pragma once

#include "resources/kit/paint.h"

namespace artwork {

/// Degrees of a knob's mark are clockwise from straight up.
///
/// A round knob with knurled skirt and a white pointer line.
void pointer_knob(const Canvas& canvas, Point centre, double radius, double mark);

/// A knob with a bar grip across it and a white line along the bar: rotary selectors.
void bar_knob(const Canvas& canvas, Point centre, double radius, double mark);

/// A black round knob with nothing on its cap.
void plain_knob(const Canvas& canvas, Point centre, double radius);

/// A plain knob that is a push switch, whose flow bar lies in line with the flow, and shines, when on.
void flow_switch(const Canvas& canvas, Point centre, double radius, bool on);

/// A ribbed wheel that turns up and down, its rim in a slot of the plate. `slot` is the opening.
void thumb_wheel(const Canvas& canvas, Box slot);

/// A knurled ring on the plate in which a knob stands.
void knob_seat(const Canvas& canvas, Point centre, double radius);

}  // namespace artwork
