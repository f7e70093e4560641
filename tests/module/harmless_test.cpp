/// No value of a token and nothing a hand does harms any gauge. The sanitizers look on.
/// TARNVALE_STORM_FRAMES=10000000 in the environment makes it ten million frames of gauges.
#include <gtest/gtest.h>

#include <bit>
#include <cstdlib>
#include <limits>
#include <random>

#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

long asked_frames() {
  const char* asked = std::getenv("TARNVALE_STORM_FRAMES");
  return asked ? std::atol(asked) : 50'000;
}

/// A host out of its mind: any bits in any token, any service, any mouse call an area could get.
class Storm {
 public:
  /// Runs every gauge of the cockpit for some frames, and works it.
  void round() {
    for (rig::Gauge& gauge : gauges_) {
      upset_tokens(40);
      service(gauge);
      frame(gauge);
      for (const rig::NamedArea& area : gauge.areas()) work(area);
      frame(gauge);
      service(gauge);
    }
    if (below(16) == 0) upset_tokens(1000);
    if (below(64) == 0) host_.tokens.clear();
  }

  std::size_t gauges() const { return gauges_.size(); }

  long frames = 0, calls = 0, values = 0;

 private:
  std::size_t below(std::size_t end) { return static_cast<std::size_t>(bits_() % end); }

  f64 any_value() {
    using Limits = std::numeric_limits<f64>;
    constexpr f64 extremes[] = {
        0.0,    -0.0,   Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), 1e308,
        -1e308, 5e-324, 4294967296.0,       -2147483649.0};
    constexpr f64 usual[] = {1, 5, 12, 60, 110, 3000, 22000, -1, 0.5, 359.9};
    switch (below(4)) {
      case 0: return extremes[below(std::size(extremes))];
      case 1: return usual[below(std::size(usual))];
      default: return std::bit_cast<f64>(bits_());
    }
  }

  void upset_tokens(int count) {
    for (int i = 0; i < count; ++i) host_.tokens[static_cast<u32>(below(1000))] = any_value();
    values += count;
  }

  void service(rig::Gauge& gauge) {
    constexpr u32 known[] = {SERVICE_BEGIN, SERVICE_SET_UP, SERVICE_END, SERVICE_TICK};
    if (below(8) == 0) gauge.service(below(8) == 0 ? static_cast<u32>(bits_()) : known[below(4)]);
  }

  void frame(rig::Gauge& gauge) {
    gauge.frame();
    ++frames;
  }

  i32 coordinate() { return below(8) == 0 ? static_cast<i32>(bits_()) : i32(below(300)) - 50; }

  /// A press, and then what follows one: repeats, or a drag to anywhere.
  void work(const rig::NamedArea& area) {
    const u32 button = below(2) ? MOUSE_LEFT : MOUSE_RIGHT;
    call(area, button);
    for (std::size_t more = below(3); more > 0; --more)
      call(area, button | (area.area->mouse_flags & (MOUSE_REPEAT | MOUSE_DRAG)));
    if (below(16) == 0) call(area, static_cast<u32>(bits_()));
  }

  void call(const rig::NamedArea& area, u32 flags) {
    EXPECT_EQ(area.area->routine({coordinate(), coordinate()}, flags), 0) << area.name;
    ++calls;
    if (host_.events.size() > 1000) host_.events.clear();
    if (host_.windows.size() > 1000) host_.windows.clear();
  }

  rig::Host host_;
  std::mt19937_64 bits_{1};
  std::vector<rig::Gauge> gauges_ = rig::built_gauges();
};

TEST(Harmless, AnyTokenValueAndAnyGesture) {
  Storm storm;
  while (storm.frames < asked_frames() && !HasFailure()) storm.round();
  std::printf("%zu gauges, %ld frames, %ld mouse calls, %ld token values\n", storm.gauges(),
              storm.frames, storm.calls, storm.values);
}

}  // namespace
