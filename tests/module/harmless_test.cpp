/// No value of a token and no click does harm to any gauge. The sanitizers look on.
#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>

#include "tests/rig/rig.h"

namespace {

TEST(Harmless, AnyTokenValueAndAnyClick) {
  using Limits = std::numeric_limits<f64>;
  constexpr f64 extremes[] = {
      0.0,    -0.0,   Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), 1e308,
      -1e308, 5e-324, 4294967296.0,       -2147483649.0};
  rig::Host host;
  std::mt19937_64 bits(1);
  std::vector<rig::Gauge> gauges = rig::built_gauges();
  for (int round = 0; round < 60; ++round) {
    for (u32 token = 1; token < 1000; ++token) {
      const bool extreme = bits() % 4 == 0;
      host.tokens[token] =
          extreme ? extremes[bits() % std::size(extremes)] : std::bit_cast<f64>(bits());
    }
    for (rig::Gauge& gauge : gauges) {
      gauge.service(SERVICE_BEGIN);
      gauge.service(SERVICE_SET_UP);
      gauge.frame(2);
      for (const rig::NamedArea& area : gauge.areas()) {
        const PanelPoint point{i32(bits() % 100) - 20, i32(bits() % 100) - 20};
        EXPECT_EQ(area.area->routine(point, bits() % 2 ? MOUSE_LEFT : MOUSE_RIGHT), 0) << area.name;
      }
      gauge.frame();
      gauge.service(SERVICE_END);
    }
  }
}

}  // namespace
