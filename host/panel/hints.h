/// What a person is told about a control.
#pragma once

#include <string>

#include "host/panel/cockpit.h"

namespace host {

/// Two short lines.
struct Hint {
  std::string words;  ///< what is under the pointer; empty: nothing worth a hint
  std::string how;    ///< how it is worked, where that is not with a plain click; may be empty
  bool operator==(const Hint&) const = default;
};

/// How an area is worked: "Right click", "Left and right click", "Drag"; empty for a plain click.
std::string way_to_work(const HotArea& area);

/// The hint for a point of a gauge, in pixels of its background. A text in the gauge's own records goes
/// before the words of the names file. Where the two buttons work different things the second line
/// names the other one.
Hint hint_at(const CockpitGauge& gauge, PanelPoint point);

}  // namespace host
