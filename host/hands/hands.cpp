#include "host/hands/hands.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {
namespace {

// A key moves a control as a hand would: first a little, then quickly; let go, it springs back.
constexpr double slow_rate = 0.6, fast_rate = 1.8, quickening_s = 0.5, back_rate = 3.5;

double out_rate(double held_s) {
  return slow_rate + (fast_rate - slow_rate) * std::min(1.0, held_s / quickening_s);
}

double toward(double from, double to, double by) {
  return from < to ? std::min(from + by, to) : std::max(from - by, to);
}

}  // namespace

Hands::Hands() : held_(action_table().size()) {}

void Hands::press(std::size_t action) {
  const ActionRow& row = action_table()[action];
  if (row.motion == Motion::window) return for_window_.push_back(row.window);
  ++held_[action];
  pressed_.push_back(action);
}

void Hands::release(std::size_t action) { held_[action] = std::max(0, held_[action] - 1); }

void Hands::release_all() { std::ranges::fill(held_, 0); }

void Hands::move(std::size_t axis_row, double position) {
  for (const auto& control : axis_table()[axis_row].controls)
    if (control) moved_.set(*control, position);
}

void Hands::move(Control control, double position) { moved_.set(control, position); }

double Hands::look(WindowAction direction) const {
  double sum = 0.0;
  for (std::size_t i = 0; i < held_.size(); ++i)
    if (action_table()[i].window == direction && held_[i] > 0) sum += action_table()[i].amount;
  return std::clamp(sum, -1.0, 1.0);
}

// Where held keys pull a control.
double Hands::pull(Control control) const {
  double sum = 0.0;
  for (std::size_t i = 0; i < held_.size(); ++i) {
    const ActionRow& row = action_table()[i];
    const bool moves = row.controls[0] == control || row.controls[1] == control;
    if (row.motion == Motion::spring && held_[i] > 0 && moves) sum += row.amount;
  }
  return std::clamp(sum, -1.0, 1.0);
}

void Hands::follow_spring(Control control, double seconds, const simulation::FlightControls& now,
                          FlightInputs& inputs) {
  Spring& spring = springs_[static_cast<std::size_t>(control)];
  const double wish = pull(control);
  if (wish == 0.0 && !spring.active) return;
  if (!spring.active) spring = {position_of(now, control), 0.0, true};
  const bool outward = wish != 0.0;
  spring.held_s = outward ? spring.held_s + seconds : 0.0;
  const bool reversing = outward && spring.position * wish < 0.0;
  spring.position = toward(spring.position, wish,
                           seconds * (outward && !reversing ? out_rate(spring.held_s) : back_rate));
  spring.active = outward || spring.position != 0.0;
  inputs.set(control, spring.position);
}

void Hands::follow_ramps(double seconds, const simulation::FlightControls& now, FlightInputs& inputs) {
  for (std::size_t i = 0; i < held_.size(); ++i) {
    const ActionRow& row = action_table()[i];
    if (row.motion != Motion::ramp || held_[i] == 0) continue;
    for (const auto& control : row.controls)
      if (control)
        inputs.set(*control,
                   inputs.get(*control).value_or(position_of(now, *control)) + row.amount * seconds);
  }
}

void Hands::press_once(const ActionRow& row, const simulation::FlightControls& now,
                       FlightInputs& inputs) {
  if (row.motion == Motion::set && !row.controls[0])  // the stick's middle
    for (const Control control :
         {Control::elevator, Control::aileron, Control::rudder, Control::tiller}) {
      springs_[static_cast<std::size_t>(control)] = {};
      inputs.set(control, 0.0);
    }
  for (const auto& control : row.controls) {
    if (!control) continue;
    const double at = inputs.get(*control).value_or(position_of(now, *control));
    if (row.motion == Motion::set) inputs.set(*control, row.amount);
    if (row.motion == Motion::step) inputs.set(*control, at + row.amount);
    if (row.motion == Motion::flip) inputs.set(*control, at < 0.5 ? 1.0 : 0.0);
  }
}

FlightInputs Hands::frame(double seconds, const simulation::FlightControls& now) {
  FlightInputs inputs = std::exchange(moved_, {});
  for (std::size_t i = 0; i < control_count; ++i)
    follow_spring(static_cast<Control>(i), seconds, now, inputs);
  follow_ramps(seconds, now, inputs);
  for (const std::size_t action : std::exchange(pressed_, {}))
    press_once(action_table()[action], now, inputs);
  return inputs;
}

}  // namespace host
