/// A cockpit whose panel lights are off goes dark with the day. What shines by itself goes on shining:
/// lamps that are lit, read-outs, and the dials whose instrument lights are on.
#pragma once

#include <cstdint>
#include <vector>

#include "host/panel/cockpit.h"

namespace host {

/// How much of the day falls on the panels: full_day, or less after sunset down to 0 by night. With the
/// panel lights on it is always full_day: by night the lit panels have a look of their own.
inline constexpr int full_day = 24;
int daylight_on_panels(const Cockpit& cockpit);

/// Whether eyes are used to the dark in it: the panel lights are on, or the day has gone.
bool is_dark(const Cockpit& cockpit);

/// The parts of one gauge that may shine.
class SelfLit {
 public:
  SelfLit(const CockpitGauge& gauge, const BitmapStore& bitmaps);

  /// What the gauge's instrument light gives its face: 0 off to 1.
  double face(const CockpitGauge& gauge) const;

  /// The boxes that shine now, in pixels of the gauge's background.
  std::vector<Rect> shining(const CockpitGauge& gauge) const;

 private:
  struct Lamp {
    std::size_t part;
    Rect box;
    std::vector<char> lit;  ///< by image
  };
  std::vector<Lamp> lamps_;
  std::vector<std::size_t> texts_, floods_;
};

/// Copies a part of a panel's picture as it looks in so much of the day, 0 to full_day.
void darken(Canvas& to, const Canvas& from, const Rect& part, int day);

/// The same for what shines: what is bright in it keeps so much of the day, what is dark has the
/// `floor` of that light, 0 to 1, as metal beside a lamp has.
void darken_lit(Canvas& to, const Canvas& from, const Rect& part, int day, int bright_day,
                double floor);

}  // namespace host
