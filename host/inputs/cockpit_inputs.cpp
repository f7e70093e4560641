#include "host/inputs/cockpit_inputs.h"

#include "host/inputs/crew.h"
#include "host/panel/wheel.h"
#include "host/simulation/places.h"

namespace host {
namespace {

Answer done_if(bool answered) { return answered ? Answer::done : Answer::nothing; }

}  // namespace

Answer CockpitInputs::take(const Input& input) {
  const Answer answer = std::visit([this](const auto& each) { return apply(each); }, input);
  if (answer == Answer::nothing) return answer;
  for (InputListener* listener : listeners_) listener->taken(cockpit_.frames(), input);
  return answer;
}

void CockpitInputs::fly(const simulation::FlightControls& wanted) {
  NamedValues moved = moves_between(cockpit_.aircraft().controls(), wanted.limited());
  if (!moved.empty()) take(input::Fly{std::move(moved)});
}

void CockpitInputs::frame() {
  pointer_.tick(cockpit_.seconds());
  cockpit_.frame();
  for (InputListener* listener : listeners_) listener->frame_passed();
}

Answer CockpitInputs::apply(const input::Press& press) {
  CockpitGauge* gauge = cockpit_.find(press.gauge);
  if (!gauge) return Answer::nothing;
  const auto button = static_cast<std::uint32_t>(press.button);
  return done_if(pointer_.press(gauge->areas, press.point, button, cockpit_.seconds()) != nullptr);
}

Answer CockpitInputs::apply(const input::Move& move) { return done_if(pointer_.move(move.point)); }

Answer CockpitInputs::apply(const input::Release&) {
  const bool held = pointer_.holding();
  pointer_.release();
  return done_if(held);
}

Answer CockpitInputs::apply(const input::Wheel& wheel) {
  const CockpitGauge* gauge = cockpit_.find(wheel.gauge);
  return done_if(gauge && turn_wheel(*gauge, wheel.point, wheel.notches));
}

Answer CockpitInputs::apply(const input::OpenWindow& open) {
  cockpit_.panels().open(open.ident);
  return done_if(cockpit_.panels().find(open.ident).has_value());
}

Answer CockpitInputs::apply(const input::CloseWindow& close) {
  cockpit_.panels().close(close.ident);
  return done_if(cockpit_.panels().find(close.ident).has_value());
}

Answer CockpitInputs::apply(const input::KeyEvent& event) {
  return done_if(cockpit_.aircraft().key_event(event.number, event.value));
}

Answer CockpitInputs::apply(const input::Fly& fly) {
  simulation::FlightControls& controls = cockpit_.aircraft().controls();
  const bool gear_was_down = controls.gear_down;
  controls = with_controls(controls, fly.moved);
  if (controls.gear_down != gear_was_down) align_gear_lever(cockpit_);
  return Answer::done;
}

Answer CockpitInputs::apply(const input::MakeWeather& weather) {
  simulation::Weather& now = cockpit_.aircraft().weather();
  now = with_weather(now, weather.changed);
  return Answer::done;
}

Answer CockpitInputs::apply(const input::PlaceInFlight& place) {
  const bool flies = cockpit_.aircraft().place_in_flight(place_of(place.place));
  align_gear_lever(cockpit_);
  return flies ? Answer::done : Answer::not_as_wanted;
}

Answer CockpitInputs::apply(const input::PlaceOnRunway&) {
  cockpit_.aircraft().place_on_runway();
  return Answer::done;
}

Answer CockpitInputs::apply(const input::MakeReady&) {
  cockpit_.aircraft().make_ready();
  return Answer::done;
}

Answer CockpitInputs::apply(const input::BeginWithStartPage&) {
  cockpit_.begin_with_start_page();
  return Answer::done;
}

Answer CockpitInputs::apply(const input::StartAt& start) {
  return done_if(start_at(cockpit_, start.place));
}

Answer CockpitInputs::apply(const input::SetTimeOfDay& time) {
  cockpit_.aircraft().set_time_of_day(time.hours * 3600);
  return Answer::done;
}

Answer CockpitInputs::apply(const input::Fail& fail) {
  return done_if(cockpit_.aircraft().set_failed(fail.key, true));
}

Answer CockpitInputs::apply(const input::Repair& repair) {
  return done_if(cockpit_.aircraft().set_failed(repair.key, false));
}

Answer CockpitInputs::apply(const input::FailByChance& chance) {
  cockpit_.aircraft().set_failure_rate(chance.per_hour);
  return Answer::done;
}

Answer CockpitInputs::apply(const input::HoldToken& hold) {
  cockpit_.aircraft().hold_token(hold.number, hold.value);
  return Answer::done;
}

Answer CockpitInputs::apply(const input::ReleaseToken& release) {
  cockpit_.aircraft().hold_token(release.number, std::nullopt);
  return Answer::done;
}

}  // namespace host
