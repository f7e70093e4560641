// What is left to be seen of a panel when the day goes.
#include "host/panel/dusk.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "host/panel/panel_picture.h"
#include "host/panel/pointer.h"
#include "platform/platform_host.h"

namespace {

using namespace host;

constexpr const char* panel =
    "[Window00]\nident=500\nsize_mm=400,300\nvisible=1\ngauge00=Tarnvale!Masterbat, 0,0\n"
    "gauge01=Tarnvale!Altimeter, 200,0\ngauge02=Tarnvale!Cainstlg, 200,200\n";

class Dusk : public testing::Test {
 protected:
  static void SetUpTestSuite() { platform_choose_audio(PLATFORM_AUDIO_NONE); }

  Dusk() { event("battery_toggle"); }

  void event(std::string_view name) {
    cockpit.aircraft().key_event(find_row(AircraftModel::events(), name)->number, 0);
  }

  // The brightest pixel of a part of a gauge, or of the whole gauge, at an hour.
  int brightest(double hour, const char* gauge, const Rect& part) {
    cockpit.aircraft().set_time_of_day(hour * 3600);
    cockpit.frame();
    changed.clear();
    picture.draw(1.0, changed);
    const Rect place = picture.place_of(*cockpit.find(gauge));
    int most = 0;
    for (int y = place.y + part.y; y < place.y + part.y + part.height; ++y)
      for (int x = place.x + part.x; x < place.x + part.x + part.width; ++x) {
        const std::uint32_t pixel =
            picture.canvas().pixels[std::size_t(y) * picture.canvas().width + x];
        most = std::max(most, static_cast<int>(pixel >> 8 & 0xFF));
      }
    return most;
  }

  GaugeModule module{COCKPIT_DIR "/Tarnvale.GAU"};
  Cockpit cockpit{module, parse_panel_config(panel, "panel.cfg")};
  PanelPicture picture{cockpit, 0, 1.0};
  std::vector<Rect> changed;
};

constexpr Rect battery_lamp{26, 44, 50, 16}, switches{20, 75, 100, 40}, dial{40, 40, 90, 90};

TEST_F(Dusk, FallsWithTheHourAndNotWithThePanelLightsOn) {
  int before = full_day;
  for (const auto& [hour, least, most] : {std::tuple{12.0, full_day, full_day},
                                          {18.0, full_day, full_day},
                                          {19.3, 12, 22},
                                          {19.8, 2, 14},
                                          {21.5, 0, 0},
                                          {0.0, 0, 0}}) {
    cockpit.aircraft().set_time_of_day(hour * 3600);
    const int day = daylight_on_panels(cockpit);
    EXPECT_TRUE(day >= least && day <= most && day <= before) << day << " at " << hour;
    before = day;
  }
  event("panel_lights_toggle");
  EXPECT_EQ(daylight_on_panels(cockpit), full_day);
}

TEST_F(Dusk, MetalGoesDarkWhileALitLampShinesAndADarkOneDoesNot) {
  const int metal = brightest(12, "Masterbat", switches),
            lamp = brightest(12, "Masterbat", battery_lamp);
  EXPECT_LT(brightest(23, "Masterbat", switches), metal * 0.4);
  EXPECT_GT(brightest(23, "Masterbat", battery_lamp), lamp * 0.95);
  EXPECT_TRUE(is_dark(cockpit));
  event("battery_toggle");
  EXPECT_LT(brightest(23, "Masterbat", battery_lamp), lamp * 0.4);
  EXPECT_EQ(brightest(12, "Masterbat", switches), metal) << "a new day";
}

TEST_F(Dusk, TheInstrumentLightBringsUpADialAndThePanelLightsHaveTheirOwnNight) {
  const int day = brightest(12, "Altimeter", dial), dark = brightest(23, "Altimeter", dial);
  EXPECT_LT(dark, day * 0.5);
  Pointer::wheel(cockpit.find("Cainstlg")->areas, {60, 25}, 1);
  const int dim = brightest(23, "Altimeter", dial);
  Pointer::wheel(cockpit.find("Cainstlg")->areas, {60, 25}, 1);
  const int bright = brightest(23, "Altimeter", dial);
  EXPECT_TRUE(dark < dim && dim < bright) << dark << " " << dim << " " << bright;
  event("panel_lights_toggle");
  brightest(23, "Altimeter", dial);
  const Canvas lit = picture.canvas();
  brightest(12, "Altimeter", dial);
  EXPECT_EQ(lit.pixels, picture.canvas().pixels);
}

TEST_F(Dusk, NothingIsDrawnAgainWhileTheHourStands) {
  brightest(23, "Masterbat", switches);
  changed.clear();
  picture.draw(1.0, changed);
  EXPECT_TRUE(changed.empty());
}

}  // namespace
