/// What a crew has set before a flight that does not begin on the stand. It works the module's own
/// controls, so that switches, gauges and aircraft agree.
#pragma once

#include <string_view>

#include "host/panel/cockpit.h"

namespace host {

/// Clicks a control once, whether or not its panel is open. False for a control that the panel does not
/// have, as all of them are where the module comes without names.
bool click_control(Cockpit& cockpit, std::string_view gauge, std::string_view control);

/// Everything as after a start some minutes ago: the start page's button for it, then the APU off and
/// the lights on. The open windows stay as they are.
void set_up_running(Cockpit& cockpit);

/// Puts the aircraft to one of start_places(), as a crew would have brought it there. Returns false for
/// a name that is none of those.
bool start_at(Cockpit& cockpit, std::string_view place);

/// The gear lever goes where the aircraft's gear is wanted: the handle would else hold a click for
/// already done.
void align_gear_lever(Cockpit& cockpit);

}  // namespace host
