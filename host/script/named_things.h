/// The parts and controls of the cockpit as flows name them. A name that is not there, and a cockpit
/// whose module has no names, is a std::runtime_error that says so.
#pragma once

#include <string>

#include "host/script/flow_session.h"

namespace host {

/// The click area of that name.
Spot named_spot(FlowSession& session, const std::string& gauge, const std::string& control);

/// The same for the wheel, which also knows two halves by what they share: "dc_meter_selector" is
/// `dc_meter_selector_up` and `dc_meter_selector_down`.
Spot named_wheel_spot(FlowSession& session, const std::string& gauge, const std::string& control);

/// What a part shows, or the lit copy that stands in for it; null while it is hidden.
const ElementState* named_part(FlowSession& session, const std::string& gauge, const std::string& part);

}  // namespace host
