#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr double gear_full = 16383.0;

template <std::size_t leg>
double gear_leg(const Aircraft& aircraft) {
  return gear_full * aircraft.airframe.surfaces.gear[leg];
}

// The pointers' scales are coarse: their tokens count tens and hundreds of degrees.
double aileron_trim(const Aircraft& aircraft) {
  return 0.0 - aircraft.controls.aileron_trim * full_aileron_trim_deg / 10.0;
}
double rudder_trim(const Aircraft& aircraft) {
  return aircraft.controls.rudder_trim * full_rudder_trim_deg / 100.0;
}

template <TrimMotor TrimDrives::*motor, int side>
void run_motor(Aircraft& aircraft, std::uint32_t) {
  (aircraft.trim_drives.*motor).press(side);
}

template <int notches>
void turn_wheel(Aircraft& aircraft, std::uint32_t) {
  turn_pitch_trim(aircraft.controls, notches);
}

template <Tug::Task side>
void push_tail(Aircraft& aircraft, std::uint32_t) {
  aircraft.tug.call_turn(side);
}

constexpr TokenRow tokens[] = {
    {{331, "gear_lever", "0 up, 16383 down"},
     [](const Aircraft& a) { return a.controls.gear_down ? gear_full : 0.0; }},
    {{332, "nose_gear_position", "0..16383"}, gear_leg<0>},
    {{333, "left_gear_position", "0..16383"}, gear_leg<1>},
    {{334, "right_gear_position", "0..16383"}, gear_leg<2>},
    {{784, "aileron_trim", "10 degrees, left positive"}, aileron_trim},
    {{787, "rudder_trim", "100 degrees, right positive"}, rudder_trim},
};

constexpr EventRow events[] = {
    {{0x1021F, "gear_up", ""}, [](Aircraft& a, std::uint32_t) { a.controls.gear_down = false; }},
    {{0x10220, "gear_down", ""}, [](Aircraft& a, std::uint32_t) { a.controls.gear_down = true; }},
    {{0x10047, "pitch_trim_nose_down", ""}, turn_wheel<-1>},
    {{0x1004F, "pitch_trim_nose_up", ""}, turn_wheel<1>},
    {{0x102E4, "aileron_trim_left", ""}, run_motor<&TrimDrives::aileron, -1>},
    {{0x102E5, "aileron_trim_right", ""}, run_motor<&TrimDrives::aileron, 1>},
    {{0x102E6, "rudder_trim_left", ""}, run_motor<&TrimDrives::rudder, -1>},
    {{0x102E7, "rudder_trim_right", ""}, run_motor<&TrimDrives::rudder, 1>},
    {{0x103B3, "pushback_call", ""}, [](Aircraft& a, std::uint32_t) { a.tug.call(); }},
    {{0x10002, "pushback_tail_left", ""}, push_tail<Tug::Task::tail_left>},
    {{0x10003, "pushback_tail_right", ""}, push_tail<Tug::Task::tail_right>},
};

}  // namespace

constinit const SystemRows flight_controls_rows{tokens, events};

}  // namespace host::simulation
