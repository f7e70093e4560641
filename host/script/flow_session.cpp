#include "host/script/flow_session.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "host/panel/panel_scene.h"

namespace host {
namespace {

std::string place_name(const Spot& spot) {
  if (!spot.control.empty()) return spot.control + " of " + spot.gauge;
  return std::to_string(spot.point.x) + "," + std::to_string(spot.point.y) + " of " + spot.gauge;
}

// A control that lies under another one is not worked by mistake for it.
bool is_reached(const CockpitGauge& gauge, const Spot& spot, std::uint32_t button) {
  return !spot.area || gauge.areas.at(spot.point, button) == spot.area;
}

}  // namespace

FlowSession::FlowSession(CockpitInputs& inputs, FlowSurroundings surroundings)
    : inputs_(inputs), cockpit_(inputs.cockpit()), surroundings_(std::move(surroundings)) {
  cockpit_.on_event = [this](const SentEvent& event) { events_.push_back(event); };
}

FlowSession::~FlowSession() { cockpit_.on_event = nullptr; }

void FlowSession::frame() {
  surroundings_.pass_frame ? surroundings_.pass_frame() : inputs_.frame();
  if (surroundings_.after_frame) surroundings_.after_frame(1.0 / cockpit_.rate());
  if (time_moved) time_moved();
}

void FlowSession::wait(double duration) {
  const double until = seconds() + duration - 1e-9;
  while (seconds() < until) frame();
}

CockpitGauge& FlowSession::shown_gauge(const std::string& name) {
  CockpitGauge* gauge = cockpit_.find(name);
  if (!gauge) throw std::runtime_error("no window has a gauge '" + name + "'");
  if (cockpit_.is_shown(*gauge)) return *gauge;
  const WindowConfig& window = *cockpit_.window_of(*gauge)->config;
  throw std::runtime_error(name + " is not shown: its window '" + window.title + "' (" +
                           std::to_string(window.ident) + ") is closed");
}

// A gauge that has never run shows nothing yet: nobody clicks before the first frame.
CockpitGauge& FlowSession::begin_gesture(const Spot& spot) {
  if (surroundings_.before_gesture) surroundings_.before_gesture(spot);
  CockpitGauge& gauge = shown_gauge(spot.gauge);
  if (!gauge.started) frame();
  events_.clear();
  return gauge;
}

void FlowSession::press(const CockpitGauge& gauge, const Spot& spot, std::uint32_t button) {
  const input::Press press{gauge.header().name, spot.point, input::Button{button}};
  if (!is_reached(gauge, spot, button) || inputs_.take(press) == Answer::nothing)
    throw std::runtime_error("nothing answers the " +
                             std::string(button == MOUSE_LEFT ? "left" : "right") + " button at " +
                             place_name(spot));
}

void FlowSession::click(const Spot& spot, std::uint32_t button) { hold(spot, button, 0); }

void FlowSession::hold(const Spot& spot, std::uint32_t button, double duration) {
  press(begin_gesture(spot), spot, button);
  wait(std::max(duration, 1.0 / cockpit_.rate()));
  inputs_.take(input::Release{});
}

void FlowSession::drag(const Spot& spot, PanelPoint to, double duration) {
  press(begin_gesture(spot), spot, MOUSE_LEFT);
  const int steps = std::max(1, static_cast<int>(std::lround(duration * cockpit_.rate())));
  for (int step = 1; step <= steps; ++step) {
    const double part = static_cast<double>(step) / steps;
    const auto between = [&](int from, int end) {
      return from + static_cast<int>(std::lround((end - from) * part));
    };
    inputs_.take(input::Move{{between(spot.point.x, to.x), between(spot.point.y, to.y)}});
    wait(1.0 / cockpit_.rate());
  }
  inputs_.take(input::Release{});
}

void FlowSession::wheel(const Spot& spot, int notches) {
  CockpitGauge& gauge = begin_gesture(spot);
  for (int i = 0; i < std::abs(notches); ++i) {
    const input::Wheel turn{gauge.header().name, spot.point, notches > 0 ? 1 : -1};
    if (!is_reached(gauge, spot, MOUSE_LEFT) || inputs_.take(turn) == Answer::nothing)
      throw std::runtime_error("the wheel works nothing at " + place_name(spot));
    wait(1.0 / cockpit_.rate());
  }
}

void FlowSession::picture(const std::string& name, const std::string& what, double zoom) {
  if (find_page(what) && surroundings_.pictures.empty()) return;
  if (surroundings_.pictures.empty()) return check_picture(cockpit_, what);
  const Canvas canvas = find_page(what)
                            ? picture_of_page(what, cockpit_, surroundings_.checklists, zoom)
                            : picture_of(cockpit_, what, zoom);
  write_png(canvas, (surroundings_.pictures / (name + ".png")).string());
  if (surroundings_.after_picture) surroundings_.after_picture(canvas);
}

}  // namespace host
