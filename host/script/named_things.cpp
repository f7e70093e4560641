#include "host/script/named_things.h"

#include <stdexcept>

#include "host/panel/nearest.h"

namespace host {
namespace {

[[noreturn]] void refuse(const Cockpit& cockpit, const CockpitGauge& gauge, const char* what,
                         const std::string& name, const std::vector<Named>& all) {
  if (const std::string& missing = cockpit.names().missing; !missing.empty())
    throw std::runtime_error("parts and controls have no names: " + missing);
  std::vector<std::string_view> names;
  for (const Named& named : all) names.push_back(named.name);
  throw std::runtime_error(std::string(gauge.header().name) + " has no " + what + " '" + name + "'" +
                           did_you_mean(name, names));
}

Spot spot_of(const CockpitGauge& gauge, const Named& control, const std::string& name) {
  const HotArea& area = gauge.areas.areas()[control.index];
  return {gauge.header().name, area.box.middle(), name, &area};
}

}  // namespace

Spot named_spot(FlowSession& session, const std::string& gauge_name, const std::string& control) {
  const CockpitGauge& gauge = session.shown_gauge(gauge_name);
  if (const Named* area = gauge.names.area(control)) return spot_of(gauge, *area, control);
  refuse(session.cockpit(), gauge, "control", control, gauge.names.areas);
}

Spot named_wheel_spot(FlowSession& session, const std::string& gauge_name, const std::string& control) {
  const CockpitGauge& gauge = session.shown_gauge(gauge_name);
  const Named* up = gauge.names.area(control + "_up");
  if (gauge.names.area(control) || !up || !gauge.names.area(control + "_down"))
    return named_spot(session, gauge_name, control);
  return spot_of(gauge, *up, control);
}

const ElementState* named_part(FlowSession& session, const std::string& gauge_name,
                               const std::string& part) {
  CockpitGauge& gauge = session.shown_gauge(gauge_name);
  const Named* named = gauge.names.part(part);
  if (!named) refuse(session.cockpit(), gauge, "part", part, gauge.names.parts);
  if (!gauge.started) session.frame();
  return gauge.run.showing(named->index);
}

}  // namespace host
