/// Needles, drums and figures that show what the host measures.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

TEST(Readings, ShowTheirOwnTokens) {
  struct Row {
    const char *gauge, *part;
    u32 token;
    f64 measured, shown;
  };
  for (const Row& row : {Row{"Vsitcas", "vertical_speed", 65, -2600.96, -2000},
                         Row{"Vsitcas", "vertical_speed", 65, 10000, 6000},
                         Row{"Vsitcas", "power_flag", 364, 1, 1},
                         Row{"Oat", "outside_air_temperature", 341, -70, -60},
                         Row{"Oat", "outside_air_temperature", 341, 15, 15},
                         Row{"Clock", "hours_hand", 3, 23, 23},
                         Row{"Clock", "minutes_hand", 4, 59, 59},
                         Row{"Clock", "seconds_hand", 5, 30, 30},
                         Row{"Markers", "marker_light", 354, 0, -1},
                         Row{"Markers", "marker_light", 354, 3, 2},
                         Row{"Fdir", "flight_director_switch", 792, 1, 1},
                         Row{"Adisafe", "bank_pointer", 79, 12, 12},
                         Row{"Trim", "rudder_trim_pointer", token::rudder_trim, -0.035, -0.35},
                         Row{"Cabvs", "cabin_rate_of_climb", 65, 3000, 1000},
                         Row{"Cabvs", "cabin_rate_of_climb", 65, -900, -300},
                         Row{"Cabvs", "cabin_rate_of_climb", 65, 7500, 2000},
                         Row{"Cabvs", "cabin_rate_of_climb", 65, -1e300, -2000},
                         Row{"Apmode", "selected_speed_hundreds", 116, 245, 2},
                         Row{"Apmode", "selected_speed_tens", 116, -35, -3},
                         Row{"Apmode", "selected_speed_units", 116, 245, 5},
                         Row{"Apcourse", "selected_heading_hundreds", 107, 359.5, 3},
                         Row{"Apcourse", "selected_heading_tens", 107, 359.5, 5},
                         Row{"Apcourse", "selected_heading_units", 107, 359.5, 9.5},
                         Row{"Apcourse", "vertical_speed_wheel", 120, 7000, 6200},
                         Row{"Apcourse", "vertical_speed_wheel", 120, -6300, -6200},
                         Row{"Apcourse", "vertical_speed_wheel", 120, -1200, -1200},
                         Row{"Apalt", "ten_thousands_of_feet", 109, 12345, 1},
                         Row{"Apalt", "thousands_of_feet", 109, 12345, 2},
                         Row{"Apalt", "hundreds_of_feet", 109, 12345, 345},
                         Row{"Apalt", "power_flag", 364, 1, 1},
                         Row{"Aplight", "autopilot_lamp", 103, 1, 1}}) {
    rig::Host host;
    host.tokens[row.token] = row.measured;
    rig::Gauge(row.gauge).expect({{row.part, row.shown}});
  }
}

/// A needle shows its token between the ends of its dial.
TEST(Readings, StayWithinTheirDials) {
  struct Row {
    const char *gauge, *part;
    u32 token;
    f64 low, high;
  };
  constexpr Row rows[] = {
      {"Engn1", "engine_1_fan_speed", 624, 0, 120},
      {"Engn1", "engine_2_fan_speed", 643, 0, 120},
      {"Engtgt", "engine_1_gas_temperature", 631, 0, 3800},
      {"Engtgt", "engine_2_gas_temperature", 650, 0, 3800},
      {"Eng1n2", "core_speed", 625, 0, 120},
      {"Eng2n2", "core_speed", 644, 0, 120},
      {"Eng1ins", "oil_pressure", 148, 0, 32768},
      {"Eng1ins", "oil_temperature", 147, -4681, 16384},
      {"Eng2ins", "oil_pressure", 183, 0, 32768},
      {"Eng2ins", "oil_temperature", 182, -4681, 16384},
      {"Fuelrl", "left_tank_quantity", 304, 0, 1280},
      {"Fuelrl", "right_tank_quantity", 303, 0, 1280},
      {"Fuelc", "centre_tank_quantity", 305, 0, 830},
      {"Fouti", "hydraulic_pressure", 185, 0, 14500000},
      {"Fouti", "hydraulic_quantity", 186, 0, 20000},
      {"Foflt", "hydraulic_pressure", 150, 0, 14500000},
      {"Foflt", "hydraulic_quantity", 151, 0, 20000},
  };
  for (const Row& row : rows) {
    rig::Host host;
    rig::Gauge gauge(row.gauge);
    const f64 middle = (row.low + row.high) / 2;
    for (const auto& [measured, shown] : {std::pair{row.low - 10, row.low},
                                          {middle, middle},
                                          {row.high, row.high},
                                          {row.high + 10, row.high}}) {
      host.tokens = {{row.token, measured}};
      gauge.expect({{row.part, shown}});
    }
  }
}

TEST(Readings, APressureRatioIsShownTwiceAsWide) {
  for (const auto& [name, part, token] : {std::tuple{"Engn1", "engine_1_pressure_ratio", 630u},
                                          {"Eng1n2", "pressure_ratio", 630u},
                                          {"Engn1", "engine_2_pressure_ratio", 649u},
                                          {"Eng2n2", "pressure_ratio", 649u}}) {
    rig::Host host;
    rig::Gauge gauge(name);
    for (const auto& [measured, shown] : {std::pair{0.9, 1.0}, {1.0, 1.0}, {1.2, 1.4}, {1.5, 1.78}}) {
      host.tokens = {{token, measured}};
      gauge.expect({{part, shown}});
    }
  }
}

}  // namespace
