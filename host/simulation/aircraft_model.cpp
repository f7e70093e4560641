#include "host/simulation/aircraft_model.h"

#include <cmath>
#include <map>
#include <vector>

#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host {
namespace {

/// The rows without their functions, for listings.
template <typename Row>
std::vector<TableRow> names_of(std::span<const Row> table) {
  std::vector<TableRow> rows;
  for (const Row& row : table) rows.push_back(row.row);
  return rows;
}

}  // namespace

struct AircraftModel::Systems {
  simulation::Aircraft aircraft;
  double pending_steps = 0.0;
  std::map<std::uint32_t, double> held;
};

AircraftModel::AircraftModel() : systems_(std::make_unique<Systems>()) {}

AircraftModel::AircraftModel(StartCondition condition) : AircraftModel() {
  if (condition == StartCondition::ready) systems_->aircraft.make_ready();
}

AircraftModel::~AircraftModel() = default;

void AircraftModel::advance(double seconds) {
  if (!std::isfinite(seconds) || seconds <= 0.0) return;
  // Time arrives in slices that are rarely a whole number of steps and never quite exact: a
  // millionth of a step is forgiven, so that three thirds of a second are a second.
  constexpr double forgiven_steps = 1e-6;
  systems_->pending_steps += seconds * systems_->aircraft.clock.steps_per_second;
  systems_->aircraft.tug.breathe();  // at a fast pace several breaths fall into one step
  const double due = std::floor(systems_->pending_steps + forgiven_steps);
  systems_->pending_steps -= due;
  for (double done = 0.0; done < due; ++done) systems_->aircraft.step();
}

double AircraftModel::seconds() const { return systems_->aircraft.clock.elapsed_s(); }

simulation::FlightControls& AircraftModel::controls() { return systems_->aircraft.controls; }

simulation::Weather& AircraftModel::weather() { return systems_->aircraft.air.weather; }

const simulation::Weather& AircraftModel::weather() const { return systems_->aircraft.air.weather; }

const simulation::FlightState& AircraftModel::flight() const { return systems_->aircraft.flight; }

double AircraftModel::time_of_day_s() const { return systems_->aircraft.clock.time_of_day_s(); }

void AircraftModel::set_time_of_day(double seconds) {
  if (seconds >= 0.0 && seconds <= simulation::day_s) systems_->aircraft.clock.set_time_of_day(seconds);
}

void AircraftModel::make_ready() { systems_->aircraft.make_ready(); }

void AircraftModel::hand_over() { systems_->aircraft.hand_over(); }

void AircraftModel::place_on_runway() { systems_->aircraft.place_on_runway(); }

bool AircraftModel::place_in_flight(const simulation::InFlight& where) {
  return systems_->aircraft.place_in_flight(where);
}

bool AircraftModel::key_event(std::uint32_t number, std::uint32_t value) {
  const simulation::EventRow* row = simulation::find_event(number);
  if (row == nullptr) return false;
  row->apply(systems_->aircraft, value);
  return true;
}

double AircraftModel::token(std::uint32_t number) const {
  const auto held = systems_->held.find(number);
  if (held != systems_->held.end()) return held->second;
  const simulation::TokenRow* row = simulation::find_token(number);
  return row != nullptr ? row->read(systems_->aircraft) : 0.0;
}

std::array<std::string_view, 3> AircraftModel::identifications_heard() const {
  return systems_->aircraft.identifications_heard();
}

simulation::SoundSources AircraftModel::sound_sources() const {
  return simulation::sound_sources(systems_->aircraft);
}

bool AircraftModel::set_failed(std::uint32_t key, bool failed) {
  return systems_->aircraft.failures.set(key, failed);
}

bool AircraftModel::failed(std::uint32_t key) const { return systems_->aircraft.failures.failed(key); }

bool AircraftModel::any_failed() const { return systems_->aircraft.failures.any(); }

void AircraftModel::set_failure_rate(double per_hour) {
  systems_->aircraft.failures.per_hour = per_hour;
}

double AircraftModel::failure_rate() const { return systems_->aircraft.failures.per_hour; }

std::span<const simulation::Vector> AircraftModel::track() const {
  return systems_->aircraft.track.points();
}

const simulation::VhfTuning& AircraftModel::com() const { return systems_->aircraft.com; }

bool AircraftModel::com_powered() const { return systems_->aircraft.has_avionics(); }

const simulation::ProgramWindows& AircraftModel::program_windows() const {
  return systems_->aircraft.windows;
}

std::vector<std::uint32_t> AircraftModel::held_tokens() const {
  std::vector<std::uint32_t> tokens;
  for (const auto& [token, value] : systems_->held) tokens.push_back(token);
  return tokens;
}

void AircraftModel::hold_token(std::uint32_t number, std::optional<double> value) {
  if (value) {
    systems_->held[number] = *value;
  } else {
    systems_->held.erase(number);
  }
}

std::span<const TableRow> AircraftModel::tokens() {
  static const std::vector<TableRow> rows = names_of(simulation::token_table());
  return rows;
}

std::span<const FailureRow> AircraftModel::failures() { return simulation::failure_table(); }

std::span<const TableRow> AircraftModel::events() {
  static const std::vector<TableRow> rows = names_of(simulation::event_table());
  return rows;
}

}  // namespace host
