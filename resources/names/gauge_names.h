/// What the parts and click areas of the gauges are called: in words, as their rows say them, and by
/// names made of these words, by which artwork, tests and flows address them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "interface/panel_interface.h"

namespace tarnvale::names {

/// A part of a gauge's first set.
struct NamedPart {
  std::string name;   ///< "battery_switch"
  const char* words;  ///< "Battery switch"
  const Element* element;
  std::size_t index;  ///< in the chain; the background is 0
};

/// A click area of a gauge.
struct NamedArea {
  std::string name;
  const char* words;
  const MouseArea* area;
  PanelPoint corner;  ///< in pixels of the background
  std::size_t index;  ///< among the gauge's click areas
};

/// The words in lower case, with an underscore for everything between letters and digits.
std::string name_of(std::string_view words);

/// The gauge of that name in the module; null if it has none.
const GaugeHeader* find_gauge(std::string_view name);

/// In the order of the chain and of the mouse table. `gauge` is one of the module's own.
std::vector<NamedPart> parts(const GaugeHeader& gauge);
std::vector<NamedArea> areas(const GaugeHeader& gauge);

/// The names of all gauges as the text file beside the module has them: a line each of gauge, name,
/// place and words, separated by tabs; the place is "element N" or "box X,Y,WIDTH,HEIGHT".
std::string names_file();

}  // namespace tarnvale::names
