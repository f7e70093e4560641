#include "gauges/controls/pushback_programmes.h"

namespace tarnvale {

constinit TugPanel tug;
constinit u32 push_distance, push_heading, push_left_angle, push_right_angle;

namespace {

constexpr u32 ready = 20;                  // the progress at which the tug starts
constexpr u32 straightened = 6, done = 8;  // after a turn

void call_tug() { send(event::pushback_call); }

/// Progress, and the calls of the straight part.
void push_straight(PushProgramme& p, f64 simulation_rate) {
  p.rate = whole_u32(2 * simulation_rate);
  if (tug.automatic == 0) {
    p.frames = 0;
  } else if (p.armed == 1) {
    ++p.frames;
  }
  p.progress = p.frames * p.rate / 10000;
  if (p.progress > ready) call_tug();
  if (p.progress > push_distance) call_tug();
}

void finish(PushProgramme& p) { p.progress = p.frames = p.armed = tug.automatic = 0; }

/// Setting the parking brake begins the push anew.
void mind_the_brake(PushProgramme& p) {
  if (tug.parking_brake > 0) p.frames = 0;
}

void turned(const PushProgramme& p, bool reached) {
  if (tug.turning != 1 || p.armed != 1 || !reached) return;
  call_tug();
  tug.automatic = 1;
}

/// The last straight metres after a turn.
void straighten(PushProgramme& p, bool straight) {
  if (straight && p.progress > straightened) call_tug();
  if (!straight || p.progress <= done) return;
  call_tug();
  finish(p);
  tug.turning = 0;
}

template <u32 tail_event>
void start_turn(PushProgramme& other) {
  tug.turning = tug.turn_light = 1;
  tug.automatic = 0;
  other.armed = 0;
  send(event::pushback_call);
  send(tail_event);
}

}  // namespace

void step_back(f64 simulation_rate) {
  push_straight(tug.back, simulation_rate);
  if (tug.back.progress > push_distance) finish(tug.back);
  mind_the_brake(tug.back);
}

void step_left(f64 simulation_rate) {
  push_straight(tug.left, simulation_rate);
  turned(tug.left, tug.left_target <= tug.tail);
  straighten(tug.left, tug.tail == tug.left_target);
  mind_the_brake(tug.left);
}

void step_right(f64 simulation_rate) {
  push_straight(tug.right, simulation_rate);
  turned(tug.right, tug.whole_tail <= tug.right_target);
  straighten(tug.right, tug.turning == 1);
  mind_the_brake(tug.right);
}

void arm(PushProgramme& programme) {
  constexpr f64 stopped_below = 10;
  const f64 fan_1 = read(token::engine_1_fan_speed), fan_2 = read(token::engine_2_fan_speed);
  const bool running = fan_1 >= stopped_below || fan_2 >= stopped_below;
  programme.armed = programme.armed == 0 && !running;
}

void press_turn() {
  if (tug.turning == 0 && tug.automatic == 1 && tug.left.armed == 1) {
    start_turn<event::pushback_tail_left>(tug.right);
  } else if (tug.turning == 0 && tug.automatic == 1 && tug.right.armed == 1) {
    start_turn<event::pushback_tail_right>(tug.left);
  } else {
    tug.turning = tug.turn_light = 0;
  }
}

/// At exactly 0, 180 and 360 degrees the tail's heading is held.
void take_heading(f64 heading, f64 heading_again) {
  if (heading > 0 && heading < 180) tug.tail = whole_u32(heading + 180);
  if (heading > 180 && heading < 360) tug.tail = whole_u32(heading - 180);
  const i32 whole = whole_i32(heading_again);
  if (whole > 0 && whole < 180) tug.whole_tail = static_cast<u32>(whole + 180);
  if (whole > 180 && whole < 360) tug.whole_tail = static_cast<u32>(whole - 180);
  tug.left_target = push_heading + push_left_angle;
  tug.right_target = push_heading - push_right_angle;
}

}  // namespace tarnvale
