#include "host/simulation/systems/failures.h"

#include <algorithm>

namespace host::simulation {
namespace {

constexpr FailureRow table[] = {
    {2, "attitude", "Attitude gyros"},
    {6, "airspeed", "Pitot tubes: airspeed"},
    {7, "altimeter", "Static ports: altitude"},
    {8, "compass", "Gyro compass"},
    {9, "direction_finder", "Direction finder"},
    {10, "fuel_quantity", "Fuel gauging"},
    {12, "vertical_speed", "Vertical speed"},
    {14, "receiver_1", "Navigation receiver 1"},
    {15, "receiver_2", "Navigation receiver 2"},
    {19, "standby_compass", "Standby compass"},
    {20, "electrical", "Electrical power"},
    {21, "avionics", "Avionics bus"},
    {101, "engine_1", "Engine 1"},
    {102, "engine_2", "Engine 2"},
    {103, "generator_1", "Generator of engine 1"},
    {104, "generator_2", "Generator of engine 2"},
    {105, "boost_pump_1", "Boost pump 1"},
    {106, "boost_pump_2", "Boost pump 2"},
    {107, "apu", "Auxiliary power unit"},
    {108, "gear", "Landing gear, where it stands"},
    {109, "distance", "Distance measuring"},
};
static_assert(std::size(table) == system_count);

const FailureRow* find(std::uint32_t key) {
  const auto found = std::ranges::find(table, key, &FailureRow::key);
  return found != std::end(table) ? found : nullptr;
}

}  // namespace

std::span<const FailureRow> failure_table() { return table; }

bool Failures::set(std::uint32_t key, bool failed) {
  const FailureRow* row = find(key);
  if (row != nullptr) failed_[static_cast<std::size_t>(row - table)] = failed;
  return row != nullptr;
}

bool Failures::failed(std::uint32_t key) const {
  const FailureRow* row = find(key);
  return row != nullptr && failed_[static_cast<std::size_t>(row - table)];
}

bool Failures::any() const {
  return std::ranges::any_of(failed_, [](bool failed) { return failed; });
}

void Failures::update(double dt_s) {
  if (per_hour <= 0.0) return;
  if (chance_.uniform() >= dt_s / 3600.0 * per_hour) return;
  const auto which = static_cast<std::size_t>(chance_.uniform() * static_cast<double>(system_count));
  failed_[std::min(which, system_count - 1)] = true;
}

}  // namespace host::simulation
