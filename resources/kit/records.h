/// What the module's own records say about its gauges: where parts stand, how needles turn, where a
/// click lands. Printed scales and legends take their places from here, so that they and the moving
/// parts cannot differ.
#pragma once

#include <string_view>
#include <vector>

#include "interface/panel_interface.h"
#include "resources/kit/canvas.h"

namespace artwork {

/// The gauge of that name. Ends the program if the module has none: the artwork would be wrong.
const GaugeHeader& gauge(std::string_view name);

/// All gauges, in the module's order.
std::vector<const GaugeHeader*> gauges();

/// Whether the gauge has parts on its plate yet.
bool has_parts(std::string_view name);

/// The elements over the background, top of the list first; without the lit copy.
std::vector<const Element*> parts(const GaugeHeader& of);

/// The `nth` part of the gauge that shows bitmap `id`.
const Element& part(std::string_view gauge_name, int id, int nth = 0);

/// Where that part stands on the plate.
Point place(std::string_view gauge_name, int id, int nth = 0);

/// The click areas of a gauge in plate pixels, in the order of its table.
std::vector<Box> click_boxes(const GaugeHeader& of);

/// Degrees clockwise from the right at which the cockpit will point `needle` for `value`, not reduced
/// to one turn.
double needle_angle(const Element& needle, double value);

}  // namespace artwork
