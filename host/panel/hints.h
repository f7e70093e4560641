/// What a person is told about the thing under the pointer.
#pragma once

#include <string>

#include "host/panel/cockpit.h"

namespace host {

/// Two short lines.
struct Hint {
  std::string words;     ///< what is under the pointer; empty: nothing worth a hint
  std::string how;       ///< how it is worked; empty where a plain click works it
  bool refused = false;  ///< the words say why a click has done nothing
  bool operator==(const Hint&) const = default;
};

/// How an area is worked: "Right click", "Left and right click", "Drag"; empty for a plain click.
std::string way_to_work(const HotArea& area);

/// What is said of an area: its text, else the tooltip in the gauge's own records, else its name's
/// words.
std::string words_of(const CockpitGauge& gauge, const HotArea& area);

/// The hint for a point of a gauge, in pixels of its background: of the control there, else of the part
/// that is seen there. The second line says what this half of a lever or knob does; where the two
/// buttons work different things it names the other one.
Hint hint_at(const CockpitGauge& gauge, const BitmapStore& bitmaps, PanelPoint point);

/// Why a click there would do nothing as the cockpit stands; empty words if it would do something, or
/// if no word file says.
Hint refusal_at(const Cockpit& cockpit, const CockpitGauge& gauge, PanelPoint point,
                std::uint32_t button);

}  // namespace host
