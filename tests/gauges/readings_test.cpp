/// Needles, drums and figures that show what the host measures, by the tables readings.txt and dials.txt.
#include <gtest/gtest.h>

#include "tests/rig/rig.h"
#include "tests/rig/rows.h"
#include "tests/rig/token_list.h"

namespace {

/// With a token's name at a value a "gauge part" shows another value.
void expect_shown(const std::string& place, const std::string& token, f64 measured, f64 shown) {
  rig::Host host;
  host.tokens[std::ranges::find(rig::all_tokens, token, &rig::Listed::name)->number] = measured;
  const std::size_t blank = place.find(' ');
  SCOPED_TRACE(testing::Message() << token << " at " << measured);
  rig::Gauge(place.substr(0, blank)).expect({{place.substr(blank + 1), shown}});
}

TEST(Readings, ShowTheirOwnTokens) {
  for (const Row& row : rows_of("gauges/readings.txt", 4))
    expect_shown(row[0], row[1], std::stod(row[2]), std::stod(row[3]));
}

TEST(Readings, StayWithinTheirDials) {
  for (const Row& row : rows_of("gauges/dials.txt", 4)) {
    const f64 low = std::stod(row[2]), high = std::stod(row[3]), middle = (low + high) / 2;
    for (const auto& [measured, shown] :
         {std::pair{low - 10, low}, {middle, middle}, {high, high}, {high + 10, high}})
      expect_shown(row[0], row[1], measured, shown);
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
