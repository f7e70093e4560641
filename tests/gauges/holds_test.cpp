/// What a press holds for some seconds, by the table holds.txt: springs, lights and readings under test.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"
#include "tests/rig/rows.h"

namespace {

using namespace tarnvale;

class Hold {
 public:
  explicit Hold(const Row& row)
      : gauge_(row[0].substr(0, row[0].find(' '))), row_(row), right_(row[4] == "right") {
    aircraft.dc_power_on = 1;
    host_.tokens[token::engine_1_core_speed] = 60;  // else the attitude cannot be trusted
  }

  void press_at(f64 clock) {
    host_.tokens[token::clock_seconds] = clock;
    gauge_.click(row_[0].substr(row_[0].find(' ') + 1), right_ ? MOUSE_RIGHT : MOUSE_LEFT);
  }
  f64 shown_at(f64 clock) {
    host_.tokens[token::clock_seconds] = clock;
    gauge_.frame();
    return gauge_.value(row_[1]);
  }

 private:
  rig::Host host_;
  rig::Gauge gauge_;
  const Row& row_;
  bool right_;
};

TEST(Holds, LastTheirSecondsAndEndBeforeAClockThatIsSetFarBack) {
  for (const Row& row : rows_of("gauges/holds.txt", 7)) {
    SCOPED_TRACE(row[0]);
    const f64 held = std::stod(row[2]), over = std::stod(row[3]);
    const f64 seconds = std::stod(row[5]), back = std::stod(row[6]);
    Hold hold(row);
    hold.shown_at(1000);  // whatever an earlier test held is over
    EXPECT_EQ(hold.shown_at(100), over);
    hold.press_at(100.9);
    EXPECT_EQ(hold.shown_at(100.9), held);
    EXPECT_EQ(hold.shown_at(100.9 + seconds), held);
    hold.press_at(100.9 + seconds);
    EXPECT_EQ(hold.shown_at(100.9 + 2 * seconds), held) << "a second press prolongs it";
    EXPECT_EQ(hold.shown_at(101 + 2 * seconds), over);
    hold.press_at(200);
    EXPECT_EQ(hold.shown_at(200 - back), held);
    EXPECT_EQ(hold.shown_at(200 - back - 1), over);
    hold.press_at(0);
    EXPECT_EQ(hold.shown_at(0), back > 0 ? over : held) << "at the clock's very beginning";
    EXPECT_EQ(hold.shown_at(1000), over);
  }
}

}  // namespace
