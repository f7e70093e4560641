/// The automatic programmes of the pushback panel: they measure how far the push has come, and call the
/// tug to start, to stop and to push straight again after a turn.
///
/// Progress counts frames at twice the rate of the simulation: about one a second. Up to 20 the tug
/// gets ready, from there to the set distance it is called at every frame; beyond, it is called twice,
/// which stops it.
#pragma once

#include "module/controls.h"

namespace tarnvale {

struct PushProgramme {
  u32 armed = 0;
  u32 frames = 0;
  u32 rate = 0;
  u32 progress = 0;
  u32 light = 0;
};

/// What programmes and panel share. Headings are those of the tail.
struct TugPanel {
  u32 automatic = 0, manual = 0;  ///< at most one of them
  PushProgramme back, left, right;
  u32 turning = 0, turn_light = 1;
  u32 tail = 0;        ///< degrees, truncated after the half turn
  u32 whole_tail = 0;  ///< degrees, truncated before it
  u32 left_target = 0, right_target = 0;
  f64 parking_brake = 0;
};

extern constinit TugPanel tug;

extern constinit u32 push_distance;     ///< 0..99
extern constinit u32 push_heading;      ///< 0..360
extern constinit u32 push_left_angle;   ///< 0..90
extern constinit u32 push_right_angle;  ///< 0..90

/// One frame of a programme at that rate of the simulation.
void step_back(f64 simulation_rate);
void step_left(f64 simulation_rate);
void step_right(f64 simulation_rate);

/// Arms a programme, or disarms it; with an engine running there is no arming.
void arm(PushProgramme& programme);

/// Starts the turn of the armed programme once its straight part is pushed; else ends it.
void press_turn();

/// Takes the aircraft's heading, given twice as the panel reads it.
void take_heading(f64 heading, f64 heading_again);

}  // namespace tarnvale
