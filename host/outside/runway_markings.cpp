#include <string_view>

#include "host/outside/airfield_surfaces.h"

namespace host::outside {
namespace {

using simulation::runway_length_m;

constexpr std::uint32_t paint = 0xE4E4DE, asphalt = 0x585A5C, seam = 0x4C4E50;

/// One end of the runway: metres from its threshold on, and to the right of its middle line, as a pilot
/// sees them who lands there.
class End {
 public:
  End(std::vector<Surface>& all, bool far) : all_(all), sign_(far ? -1.0 : 1.0) {}

  void mark(double from_m, double to_m, double right_m, double to_right_m,
            std::uint32_t colour = paint) {
    const double start = -0.5 * runway_length_m;
    all_.push_back(strip(sign_ * (start + from_m), sign_ * (start + to_m), sign_ * right_m,
                         sign_ * to_right_m, colour));
  }

  void both_sides(double from_m, double to_m, double inner_m, double outer_m) {
    mark(from_m, to_m, inner_m, outer_m);
    mark(from_m, to_m, -outer_m, -inner_m);
  }

 private:
  std::vector<Surface>& all_;
  double sign_;
};

/// Six stripes of 30 m either side, 1.8 m wide and apart.
void threshold(End& end) {
  for (int stripe = 0; stripe < 6; ++stripe) {
    const double inner = 1.8 + 3.6 * stripe * 0.97;
    end.both_sides(6.0, 36.0, inner, inner + 1.8);
  }
}

/// Strokes of a digit in a box of 3 by 5, feet toward the threshold: left, right, bottom, top.
struct Stroke {
  double left, right, bottom, top;
};

constexpr double pen = 0.75;

std::vector<Stroke> strokes(char digit) {
  constexpr Stroke top{0, 3, 5 - pen, 5}, middle{0, 3, 2.5 - pen / 2, 2.5 + pen / 2},
      bottom{0, 3, 0, pen};
  constexpr Stroke left{0, pen, 0, 5}, right{3 - pen, 3, 0, 5};
  constexpr Stroke upper_left{0, pen, 2.5, 5}, lower_left{0, pen, 0, 2.5};
  constexpr Stroke upper_right{3 - pen, 3, 2.5, 5}, lower_right{3 - pen, 3, 0, 2.5};
  switch (digit) {
    case '0': return {top, bottom, left, right};
    case '2': return {top, upper_right, middle, lower_left, bottom};
    case '5': return {top, upper_left, middle, lower_right, bottom};
    case '7': return {top, {1.6, 1.6 + pen + 0.1, 0, 2.6}, {2.25, 3, 2.4, 5}};
    default: return {};
  }
}

/// Digits of 18 m, which a pilot reads from three kilometres away.
void number(End& end, std::string_view digits) {
  constexpr double unit_m = 3.6, across_m = 2.2, foot_m = 48.0;
  double left_m = -across_m * 3.5;
  for (const char digit : digits) {
    for (const Stroke& stroke : strokes(digit))
      end.mark(foot_m + unit_m * stroke.bottom, foot_m + unit_m * stroke.top,
               left_m + across_m * stroke.left, left_m + across_m * stroke.right);
    left_m += across_m * 4.0;
  }
}

void touchdown_zone(End& end) {
  struct Pair {
    double at_m;
    int bars;
  };
  constexpr Pair pairs[] = {{150, 3}, {300, 3}, {600, 2}, {750, 2}, {900, 1}};
  for (const Pair& pair : pairs)
    for (int bar = 0; bar < pair.bars; ++bar)
      end.both_sides(pair.at_m, pair.at_m + 22.5, 9.0 + 3.0 * bar, 10.8 + 3.0 * bar);
  end.both_sides(aiming_point_m, aiming_point_m + 60.0, 9.0, 18.0);
}

/// What thousands of landings leave: darkest where most wheels come down.
void wear(End& end) {
  struct Trace {
    double from_m, to_m, inner_m, outer_m;
    std::uint32_t colour;
  };
  constexpr Trace traces[] = {{150, 1150, 0.3, 7.5, 0x545658},
                              {190, 1000, 0.6, 6.6, 0x505254},
                              {230, 880, 1.0, 5.8, 0x4C4E50},
                              {280, 760, 1.4, 5.0, 0x484A4C},
                              {330, 640, 1.8, 4.2, 0x444648}};
  for (const Trace& trace : traces)
    for (const double side : {-1.0, 1.0})
      end.mark(trace.from_m, trace.to_m, side * trace.inner_m, side * trace.outer_m, trace.colour);
}

void middle_line(std::vector<Surface>& all) {
  constexpr double stripe_m = 30.0, gap_m = 20.0, from_m = 80.0;
  for (double at = from_m; at + stripe_m <= runway_length_m - from_m; at += stripe_m + gap_m)
    all.push_back(
        strip(at - 0.5 * runway_length_m, at + stripe_m - 0.5 * runway_length_m, -0.45, 0.45, paint));
}

}  // namespace

std::vector<Surface> runway_surfaces() {
  constexpr double half_m = 0.5 * runway_length_m, width_m = runway_half_width_m;
  std::vector<Surface> all{strip(-half_m - 60, half_m + 60, -width_m - 3, width_m + 3, 0x63645F),
                           strip(-half_m, half_m, -width_m, width_m, asphalt)};
  End near(all, false), far(all, true);
  for (End* end : {&near, &far}) wear(*end);
  // Lanes of paving, 7.5 m wide.
  for (double right = -15.0; right <= 15.0; right += 7.5)
    all.push_back(strip(-half_m, half_m, right - 0.06, right + 0.06, seam));
  for (const double side : {-1.0, 1.0})
    all.push_back(strip(-half_m, half_m, side * (width_m - 1.5), side * (width_m - 0.6), paint));
  middle_line(all);
  for (End* end : {&near, &far}) {
    threshold(*end);
    touchdown_zone(*end);
  }
  number(near, "07");
  number(far, "25");
  return all;
}

}  // namespace host::outside
