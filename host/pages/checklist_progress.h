/// How far a checklist has come in the cockpit.
#pragma once

#include <optional>

#include "host/pages/checklist.h"
#include "host/panel/cockpit.h"

namespace host {

/// The lists without the items for gauges that the module has and no window of this panel shows.
std::vector<Checklist> fitted_to(const Cockpit& cockpit, std::vector<Checklist> lists);

/// The first wrong name in lists that were fitted, as "line 12: there is no token 'batery'"; empty if
/// there is none.
std::string fault_for(const std::vector<Checklist>& lists, const Cockpit& cockpit);

/// How many items are done.
std::size_t items_done(const Checklist& list, const Cockpit& cockpit);

/// The list that fits the moment: the last one whose condition holds, else the first.
std::size_t proposed_list(const std::vector<Checklist>& lists, const Cockpit& cockpit);

/// Where to point for an item: a box of the gauge's background.
struct Target {
  const CockpitGauge* gauge;
  Box box;
};

/// Empty for a gauge that no drawn window has and for a control that it does not have.
std::optional<Target> target_of(const Cockpit& cockpit, const std::string& gauge,
                                const std::string& control);

/// The window to look at for a gauge: an open one that has it, else the first that can be opened. Null
/// if there is none.
const WindowConfig* window_for(const Cockpit& cockpit, const CockpitGauge& gauge);

}  // namespace host
