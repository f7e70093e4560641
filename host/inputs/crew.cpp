#include "host/inputs/crew.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "host/simulation/places.h"

namespace host {
namespace {

bool reads(const Cockpit& cockpit, std::string_view token) {
  return cockpit.aircraft().token(find_row(AircraftModel::tokens(), token)->number) != 0;
}

void send(Cockpit& cockpit, std::string_view event) {
  cockpit.aircraft().key_event(find_row(AircraftModel::events(), event)->number, 0);
}

// The start page presses each of these lights once, whatever it was.
void light_up(Cockpit& cockpit) {
  for (const char* light : {"navigation_lights", "beacon_lights", "strobe_lights"})
    if (!reads(cockpit, light)) send(cockpit, std::string(light) + "_toggle");
}

// The start page opens the captain's panel and goes away.
class WindowsKept {
 public:
  explicit WindowsKept(Cockpit& cockpit) : panels_(cockpit.panels()) {
    for (const WindowConfig& window : cockpit.config().windows)
      if (window.ident != 0) shown_.emplace_back(window.ident, panels_.shows(window.ident));
  }
  ~WindowsKept() {
    for (const auto& [ident, shown] : shown_)
      if (panels_.shows(ident) != shown) panels_.toggle(ident);
  }
  WindowsKept(const WindowsKept&) = delete;
  WindowsKept& operator=(const WindowsKept&) = delete;

 private:
  PanelSet& panels_;
  std::vector<std::pair<std::uint32_t, bool>> shown_;
};

}  // namespace

bool click_control(Cockpit& cockpit, std::string_view name, std::string_view control) {
  CockpitGauge* gauge = cockpit.find(name);
  const Named* area = gauge ? gauge->names.area(control) : nullptr;
  if (!area) return false;
  const HotArea& hot = gauge->areas.areas()[area->index];
  hot.fire(hot.box.middle(), MOUSE_LEFT);
  return true;
}

void set_up_running(Cockpit& cockpit) {
  const WindowsKept kept(cockpit);
  if (!click_control(cockpit, "Intro", "captain_running")) return;
  send(cockpit, "automatic_start");  // the page leaves it out where the engines turn already
  light_up(cockpit);
  click_control(cockpit, "Apu", "master_switch");
}

bool start_at(Cockpit& cockpit, std::string_view place) {
  const auto places = start_places();
  if (std::ranges::find(places, place, &StartPlace::name) == places.end()) return false;
  if (place == "stand") return true;
  set_up_running(cockpit);
  start_at(cockpit.aircraft(), place);
  align_gear_lever(cockpit);
  return true;
}

void align_gear_lever(Cockpit& cockpit) {
  click_control(cockpit, "Gear",
                cockpit.aircraft().controls().gear_down ? "set_gear_down" : "set_gear_up");
}

}  // namespace host
