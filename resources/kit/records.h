/// What the module's own records say about its gauges: where parts stand, how needles turn, where a
/// click lands. Printed scales and legends take their places from here, so that they and the moving
/// parts cannot differ.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interface/panel_interface.h"
#include "resources/kit/geometry.h"

namespace artwork {

/// The gauge of that name. Ends the program if the module has none: the artwork would be wrong.
const GaugeHeader& gauge(std::string_view name);

/// All gauges, in the module's order.
std::vector<const GaugeHeader*> gauges();

/// The elements over the background, top of the list first; without the lit copy.
std::vector<const Element*> parts(const GaugeHeader& of);

/// The part of that name; null if there is none.
const Element* find_part(const GaugeHeader& of, std::string_view name);

/// The same, but ends the program if there is none.
const Element& part(const GaugeHeader& of, std::string_view name);

/// The click area of that name in plate pixels. Ends the program if there is none.
Box click_box(const GaugeHeader& of, std::string_view name);

/// All click areas, in the order of the gauge's table.
std::vector<Box> click_boxes(const GaugeHeader& of);

/// Where an element stands on its plate.
constexpr Point place(const Element& element) {
  return {static_cast<double>(element.position.x), static_cast<double>(element.position.y)};
}

/// What turns turns about the middle of a pixel.
constexpr Point middle_of(PanelPoint pixel) { return {pixel.x + 0.5, pixel.y + 0.5}; }

/// The point of its plate about which a needle or a sprite turns.
constexpr Point turning_point(const Element& element) {
  return middle_of(element.kind == ELEMENT_SPRITE ? element.sprite.texture_center : element.position);
}

/// Ends the program: the artwork would be wrong without what is missing.
[[noreturn]] void wrong(const std::string& what);

/// Degrees clockwise from the right at which the cockpit will point `needle` for `value`, not reduced
/// to one turn.
double needle_angle(const Element& needle, double value);

}  // namespace artwork
