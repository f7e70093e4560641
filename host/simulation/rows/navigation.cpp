#include "host/simulation/aircraft.h"
#include "host/simulation/base/angle.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

// Deviations say where the beam lies as seen from the aircraft, and so where to fly: localizer and
// course positive to the right. The glide slope's is positive above the slope, because its pointer's
// scale runs downward: the pointer stands low for one who must descend.
constexpr double localizer_full_scale = 127.0;
constexpr double slope_full_scale = 119.0;

constexpr unsigned slope_flag = 0x40, localizer_flag = 0x80, distance_flag = 0x01;

double flags(const NavReceiver& nav) {
  return static_cast<double>((nav.glide_slope ? slope_flag : 0u) |
                             (nav.localizer ? localizer_flag : 0u));
}

double code(const NavReceiver& nav) { return flags(nav) + (nav.received ? distance_flag : 0u); }

template <std::size_t receiver>
double bearing(const Aircraft& aircraft) {
  const NavReceiver& nav = aircraft.nav[receiver];
  return nav.received ? on_instrument_deg(nav.bearing_deg, magnetic_heading_deg(aircraft.flight)) : 0.0;
}

double beacon_bearing(const Aircraft& aircraft) {
  if (!aircraft.adf.received) return 0.0;
  return on_instrument_deg(aircraft.adf.bearing_deg, magnetic_heading_deg(aircraft.flight));
}

template <std::size_t receiver>
double distance(const Aircraft& aircraft) {
  return aircraft.nav[receiver].distance_nm;
}

template <std::size_t receiver>
double signal(const Aircraft& aircraft) {
  return on_off(aircraft.nav[receiver].received);
}

double localizer(const Aircraft& aircraft) {
  const NavReceiver& nav = aircraft.nav[0];
  return nav.localizer ? localizer_full_scale * nav.course_deviation : 0.0;
}

double hsi_distance_m(const Aircraft& aircraft) {
  const NavReceiver& nav = aircraft.nav[0];
  return nav.received ? nav.distance_nm * metres_per_nautical_mile : 0.0;
}

/// One less than the enumeration, so that the indicator shows nothing, TO, FROM.
double to_from(const Aircraft& aircraft) { return static_cast<double>(aircraft.nav[0].to_from) - 1; }

void turn_course(Aircraft& aircraft, double by_deg) {
  double& course_deg = aircraft.nav[0].course_deg;
  course_deg = compass_degrees(course_deg + by_deg);
}

constexpr TokenRow tokens[] = {
    {{31, "nav1_distance", "nautical miles, negative without a signal"}, distance<0>},
    {{35, "nav2_distance", "nautical miles, negative without a signal"}, distance<1>},
    {{39, "adf_bearing", "degrees, on the instrument"}, beacon_bearing},
    {{40, "localizer_deviation", "-127..127, right positive"}, localizer},
    {{41, "glide_slope_deviation", "-119..119, above the slope positive"},
     [](const Aircraft& a) { return slope_full_scale * a.nav[0].slope_deviation; }},
    {{42, "nav1_code", "bit set"}, [](const Aircraft& a) { return code(a.nav[0]); }},
    {{44, "glide_slope_signal", "0..1"},
     [](const Aircraft& a) { return on_off(a.nav[0].glide_slope); }},
    {{45, "selected_course", "degrees magnetic"},
     [](const Aircraft& a) { return a.nav[0].course_deg; }},
    {{46, "nav1_flags", "bit set: 0x40 glide slope, 0x80 localizer"},
     [](const Aircraft& a) { return flags(a.nav[0]); }},
    {{49, "nav1_signal", "0..1"}, signal<0>},
    {{58, "nav2_signal", "0..1"}, signal<1>},
    {{59, "nav2_bearing", "degrees, on the instrument"}, bearing<1>},
    {{354, "marker_beacon", "0 none, 1 outer, 2 middle, 3 inner"},
     [](const Aircraft& a) { return static_cast<double>(a.marker); }},
    {{550, "nav1_bearing", "degrees, on the instrument"}, bearing<0>},
    {{835, "hsi_distance", "metres"}, hsi_distance_m},
    {{848, "hsi_source", "0 receiver 1, 1 area navigation"},
     [](const Aircraft& a) { return on_off(a.hsi_on_area_navigation); }},
    {{849, "hsi_deviation", "full scales, left positive"},
     [](const Aircraft& a) { return -a.nav[0].course_deviation; }},
    {{853, "to_from", "-1 off, 0 to, 1 from"}, to_from},
    {{854, "course_bearing", "degrees"},
     [](const Aircraft& a) {
       return on_instrument_deg(a.nav[0].course_deg, magnetic_heading_deg(a.flight));
     }},
};

constexpr EventRow events[] = {
    {{0x1007E, "course_down", ""}, [](Aircraft& a, std::uint32_t) { turn_course(a, -1.0); }},
    {{0x1007F, "course_up", ""}, [](Aircraft& a, std::uint32_t) { turn_course(a, 1.0); }},
    {{0x10347, "hsi_source_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.hsi_on_area_navigation = !a.hsi_on_area_navigation; }},
};

}  // namespace

constinit const SystemRows navigation_rows{tokens, events};

}  // namespace host::simulation
