/// The lights of the pushback panel: what the programmes and the annunciator show.
#pragma once

#include <initializer_list>

#include "gauges/controls/pushback_programmes.h"

namespace tarnvale {

/// Between two marks of the progress a light goes on or off.
struct Blink {
  u32 above, below, light;
};

constexpr u32 beyond_any = 0xFFFFFFFF;
constexpr Blink back_blinks[] = {{2, 6, 1}, {6, 16, 0}, {16, 18, 1}, {18, 20, 0}, {20, beyond_any, 1}};
constexpr Blink turn_blinks[] = {{2, 5, 1}, {5, 16, 0}};

template <std::size_t count>
void blink(u32& light, const PushProgramme& p, const Blink (&blinks)[count]) {
  for (const Blink& each : blinks) {
    if (p.armed == 1 && p.progress > each.above && p.progress < each.below) light = each.light;
  }
}

inline f64 back_light(Element*) {
  u32& light = tug.back.light;
  for (const PushProgramme* p : {&tug.back, &tug.left, &tug.right}) {
    blink(light, *p, back_blinks);
    if (p->armed == 1 && p->progress >= push_distance) light = 0;
  }
  if (tug.manual == 1) light = 0;
  return light;
}

inline bool left_turn_goes_on() { return tug.tail < tug.left_target; }
inline bool right_turn_goes_on() { return tug.whole_tail > tug.right_target; }

template <auto programme, auto turn_goes_on>
f64 turn_programme_light(Element*) {
  PushProgramme& p = tug.*programme;
  blink(p.light, p, turn_blinks);
  if (tug.turning == 1) {
    if (!turn_goes_on()) {
      p.light = 0;
    } else if (p.progress >= push_distance) {
      p.light = 1;
    }
  }
  if (tug.manual == 1) p.light = 0;
  return p.light;
}

/// Its first picture, the lit one, asks for the turn.
inline f64 turn_light(Element*) {
  const bool free = tug.parking_brake == 0 && tug.turning == 0;
  if (free && tug.left.progress > push_distance) tug.turn_light = 0;
  if (free && tug.right.progress > push_distance) tug.turn_light = 0;
  if (tug.manual == 1) tug.turn_light = 1;
  return tug.turn_light;
}

/// What the annunciator says, in the order of its pictures.
enum Status : u32 {
  blank,
  brake_set,
  connecting,
  pushing,
  all_clear,
  turning_left,
  turning_right,
  by_hand
};

inline bool within(const PushProgramme& p, u32 above, u32 below) {
  return p.armed == 1 && p.progress > above && p.progress < below;
}

inline u32 back_status() {
  const PushProgramme& p = tug.back;
  if (within(p, 8, 20)) return connecting;
  if (within(p, 20, 24)) return pushing;
  if (within(p, 24, 28)) return all_clear;
  return within(p, 28, push_distance) ? pushing : blank;
}

inline u32 turn_status(const PushProgramme& p, bool turn_goes_on, Status turning) {
  if (within(p, 8, 20)) return connecting;
  if (within(p, 20, push_distance)) return pushing;
  if (p.armed == 1 && tug.turning == 0 && p.progress > push_distance) return all_clear;
  return p.armed == 1 && tug.turning == 1 && turn_goes_on ? turning : blank;
}

inline u32 programmes_status() {
  if (const u32 status = back_status(); status != blank) return status;
  const u32 left = turn_status(tug.left, left_turn_goes_on(), turning_left);
  if (left != blank) return left;
  return turn_status(tug.right, right_turn_goes_on(), turning_right);
}

inline f64 status(Element*) {
  tug.parking_brake = read(token::parking_brake);
  if (tug.parking_brake > 0) return brake_set;
  const u32 running = tug.parking_brake == 0 ? programmes_status() : blank;
  if (running != blank) return running;
  return tug.manual == 1 ? by_hand : blank;
}

/// A mode shows only while the other one is off.
template <auto mode, auto other>
f64 mode_light(Element*) {
  if (tug.*other == 1) tug.*mode = 0;
  return tug.*mode;
}

}  // namespace tarnvale
