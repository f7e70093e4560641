/// The pushback tug.
///
/// Its driver is called over the interphone. One call starts a straight push, the next one ends it; a
/// call with a side turns the tail there, the same again ends that. A call that is repeated without a
/// pause is one long call: straight back for as long as it lasts. Two calls in one breath are a stop,
/// as are brakes.
///
/// The driver takes the chocks away, pushes at 1.3 m/s, and turns at 0.8 m/s with the nose wheel 20
/// degrees aside, which on this wheelbase is 1.4 degrees a second; 90 degrees take a minute. The nose
/// wheel is straightened within 0.7 s, so that a turn ends half a degree after its call. Standing, the
/// tug holds the aircraft until the parking brake is set or a throttle is moved up; then it drives off.
#pragma once

namespace host::simulation {

struct TugInputs {
  bool standing;        ///< on the wheels, at rest
  bool brakes_on;       ///< parking brake or a pedal
  bool no_more_needed;  ///< the crew holds or moves the aircraft by itself
};

struct Tug {
  enum class Task { stand, straight, tail_left, tail_right };

  bool coupled = false;  ///< it moves or holds the aircraft; nothing else does
  Task task = Task::stand;
  double speed_mps = 0.0;       ///< at the main wheels, backward positive
  double nose_wheel_rad = 0.0;  ///< the tail goes left with it positive

  void call();
  /// What is called from here on is another breath.
  void breathe() { calls_in_breath = 0; }
  void call_turn(Task side) { turn = side; }

  void update(double dt_s, const TugInputs& inputs);

  /// About the main wheels, right positive.
  double yaw_rad_per_s() const;

 private:
  int calls_in_breath = 0;
  int calls = 0;            // in one breath, the most since the last step
  Task turn = Task::stand;  // called with them
  double since_call_s = 1e9;
  bool long_call = false;

  void hear(double dt_s);
  void hear_call();
  void move(double dt_s);
};

}  // namespace host::simulation
