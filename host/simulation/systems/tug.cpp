#include "host/simulation/systems/tug.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/numeric.h"
#include "host/simulation/base/units.h"
#include "host/simulation/flight/landing_gear.h"

namespace host::simulation {
namespace {

constexpr double straight_mps = 1.3, turning_mps = 0.8;
constexpr double start_mps2 = 0.4, stop_mps2 = 0.6;
constexpr double turn_rad = 20.0 * radians_per_degree;
constexpr double steering_rad_per_s = 30.0 * radians_per_degree;
constexpr double pause_s = 0.5;  // after which a call is a new one
constexpr double wheelbase_m = nose_wheel_ahead_m + main_wheels_behind_m;

double wanted_mps(Tug::Task task) {
  if (task == Tug::Task::stand) return 0.0;
  return task == Tug::Task::straight ? straight_mps : turning_mps;
}

double wanted_rad(Tug::Task task) {
  if (task == Tug::Task::tail_left) return turn_rad;
  return task == Tug::Task::tail_right ? -turn_rad : 0.0;
}

}  // namespace

double Tug::yaw_rad_per_s() const { return speed_mps * std::tan(nose_wheel_rad) / wheelbase_m; }

void Tug::call() { calls = std::max(calls, ++calls_in_breath); }

void Tug::hear_call() {
  const bool goes_on = since_call_s < pause_s;
  const Task before = task;
  long_call = false;
  if (turn != Task::stand) {
    task = before == turn ? Task::stand : turn;
  } else if (calls > 1) {
    task = Task::stand;
  } else if (goes_on) {
    task = Task::straight;
    long_call = true;
  } else {
    task = before == Task::stand ? Task::straight : Task::stand;
  }
}

void Tug::hear(double dt_s) {
  since_call_s += dt_s;
  if (calls > 0) {
    hear_call();
    since_call_s = 0.0;
  } else if (long_call && since_call_s >= pause_s) {
    task = Task::stand;
    long_call = false;
  }
  calls = calls_in_breath = 0;
  turn = Task::stand;
}

void Tug::move(double dt_s) {
  const double wanted = wanted_mps(task);
  speed_mps = approach(speed_mps, wanted, wanted > speed_mps ? start_mps2 : stop_mps2, dt_s);
  nose_wheel_rad = approach(nose_wheel_rad, wanted_rad(task), steering_rad_per_s, dt_s);
}

void Tug::update(double dt_s, const TugInputs& inputs) {
  hear(dt_s);
  if (inputs.brakes_on || !(coupled || inputs.standing)) task = Task::stand;
  if (task != Task::stand) coupled = true;
  if (!coupled) return;
  move(dt_s);
  if (task == Task::stand && speed_mps == 0.0 && inputs.no_more_needed) *this = {};
}

}  // namespace host::simulation
