// The real module in small panels and in its own.
#include "host/panel/cockpit.h"

#include <gtest/gtest.h>

#include <set>

#include "host/drawing/pixels.h"
#include "host/panel/panel_picture.h"
#include "host/panel/panel_scene.h"
#include "tests/rig/loaded_module.h"
#include "tests/rig/refusal.h"

namespace {

using namespace host;

constexpr const char* two_windows =
    "[Window00]\nident=500\nident_day=20\nident_night=27\nsize_mm=400,300\nvisible=1\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=tarnvale!cainstlg, 200,0\n"
    "[Window02]\nident=502\nsize_mm=400,300\n"
    "gauge00=Tarnvale!Masterbat, 10,20,348,296\ngauge01=Tarnvale!Avimaster, 0,0\n";

class SmallCockpit : public testing::Test {
 protected:
  bool battery_lamp() {
    for (const ElementState& state : cockpit.find("Masterbat")->run.now())
      if (state.evaluated && state.element->resource_id == 40) return state.values[0] == 1;
    return false;
  }

  void click(const char* gauge, PanelPoint point) {
    cockpit.find(gauge)->areas.at(point, MOUSE_LEFT)->fire(point, MOUSE_LEFT);
  }

  Cockpit cockpit{loaded_module(), parse_panel_config(two_windows, "panel.cfg")};
};

TEST_F(SmallCockpit, AGaugeInTwoWindowsRunsOnceAndOnlyWhileOneIsOpen) {
  CockpitGauge* battery = cockpit.find("MASTERBAT");
  CockpitGauge* avionics = cockpit.find("Avimaster");
  ASSERT_NE(battery, nullptr);
  EXPECT_EQ(cockpit.windows()[1].gauges[0].gauge, battery);
  cockpit.panels().open(502);
  cockpit.frame();
  EXPECT_EQ(avionics->frame, 1u);
  EXPECT_TRUE(battery->moving) << "a second run in one frame would find nothing new";
  cockpit.panels().close(502);
  cockpit.frame();
  EXPECT_EQ(battery->frame, 2u);
  EXPECT_EQ(avionics->frame, 1u) << "a hidden window's gauges stand still";
  EXPECT_FALSE(cockpit.is_shown(*avionics));
}

TEST_F(SmallCockpit, AClickReachesTheAircraftAndComesBack) {
  std::vector<std::uint32_t> sent;
  cockpit.on_event = [&](const SentEvent& event) { sent.push_back(event.number); };
  cockpit.frame();
  EXPECT_FALSE(battery_lamp());
  click("Masterbat", {47, 99});
  EXPECT_EQ(sent, (std::vector<std::uint32_t>{0x10346, 0x102C2, 0x1033B, 0x1033C, 0x1033D}));
  EXPECT_EQ(cockpit.aircraft().token(364), 1);
  cockpit.frame();
  EXPECT_TRUE(battery_lamp());
}

TEST_F(SmallCockpit, ThePanelLightSwitchTurnsTheFaceOfItsPanel) {
  cockpit.frame();
  click("Cainstlg", {27, 83});
  cockpit.frame();
  EXPECT_EQ(cockpit.panels().face(0), Face::night);
  EXPECT_TRUE(cockpit.panels().shows(500));
  click("Cainstlg", {27, 83});
  EXPECT_EQ(cockpit.panels().face(0), Face::day);
}

TEST_F(SmallCockpit, DrawsAgainOnlyWhatChanged) {
  cockpit.frame();
  PanelPicture picture(cockpit, 0, 1.0);
  std::vector<Rect> changed;
  picture.draw(1.0, changed);
  EXPECT_EQ(changed.front(), (Rect{0, 0, 400, 300}));
  changed.clear();
  cockpit.frame();
  picture.draw(1.0, changed);
  EXPECT_TRUE(changed.empty());
  click("Masterbat", {47, 99});
  cockpit.frame();
  picture.draw(1.0, changed);
  EXPECT_EQ(changed, (std::vector<Rect>{{0, 0, 174, 148}}));
}

TEST_F(SmallCockpit, FindsTheGaugeUnderAPixelAtAnyZoom) {
  cockpit.frame();
  for (const double zoom : {0.5, 1.7}) {
    const PanelPicture picture(cockpit, 1, zoom);
    const auto hit =
        picture.hit(static_cast<int>((10 + 2 * 47.5) * zoom), static_cast<int>((20 + 2 * 99.5) * zoom));
    ASSERT_TRUE(hit) << zoom;
    EXPECT_STREQ(hit->gauge->header().name, "Masterbat");
    EXPECT_NEAR(hit->point.x, 47, 1);
    EXPECT_NEAR(hit->point.y, 99, 1);
  }
  EXPECT_STREQ(PanelPicture(cockpit, 1, 1.0).hit(15, 25)->gauge->header().name, "Avimaster");
  EXPECT_FALSE(PanelPicture(cockpit, 1, 1.0).hit(399, 299));
}

TEST_F(SmallCockpit, RefusesGaugesThatTheModuleDoesNotHave) {
  const std::pair<std::string, std::string> cases[] = {
      {"gauge00=Tarnvale!Altimiter, 0,0", "panel.cfg:3: Tarnvale has no gauge 'Altimiter'"},
      {"gauge00=Other!Masterbat, 0,0", "panel.cfg:3: the module is Tarnvale, not Other"},
  };
  for (const auto& [line, message] : cases) {
    const PanelConfig panel = parse_panel_config("[Window00]\nsize_mm=9,9\n" + line, "panel.cfg");
    EXPECT_EQ(refusal<ConfigError>([&] { const Cockpit other(loaded_module(), panel); }), message);
  }
  EXPECT_THROW(picture_of(cockpit, "Altimeter", 1), std::runtime_error);
}

// ---- The cockpit's own panel ----------------------------------------------------------------

class OwnPanel : public testing::Test {
 protected:
  Cockpit cockpit{loaded_module(), read_panel_config(SOURCE_DIR "/aircraft/panel/panel.cfg")};
};

TEST_F(OwnPanel, GaugesStandInsideTheirWindowsAndApart) {
  for (const CockpitWindow& window : cockpit.windows()) {
    if (!window.config->drawn) continue;
    for (std::size_t i = 0; i < window.gauges.size(); ++i) {
      const auto& [gauge, place] = window.gauges[i];
      const std::string name = window.config->title + ": " + gauge->header().name;
      const Rect face{0, 0, window.config->width, window.config->height};
      EXPECT_EQ(intersection(place, face), place) << name << " stands outside";
      for (std::size_t k = 0; k < i; ++k)
        EXPECT_FALSE(overlap(place, window.gauges[k].place))
            << name << " covers " << window.gauges[k].gauge->header().name;
    }
  }
}

TEST_F(OwnPanel, HasEveryGaugeAndEveryNamedControlIsReachedAndEveryNamedPartShows) {
  EXPECT_EQ(cockpit.names().notes, std::vector<std::string>());
  EXPECT_EQ(cockpit.names().missing, "");
  for (std::uint32_t asked_by_gauges : {500, 501, 502, 503, 504, 505, 506, 507, 20, 21, 27, 28})
    EXPECT_TRUE(cockpit.panels().find(asked_by_gauges)) << asked_by_gauges;
  for (std::uint32_t ident = 500; ident <= 509; ++ident) cockpit.panels().open(ident);
  cockpit.frame();
  for (const GaugeHeader* header : loaded_module().gauges()) {
    ASSERT_NE(cockpit.find(header->name), nullptr) << header->name << " stands in no window";
    const CockpitGauge& gauge = *cockpit.find(header->name);
    for (const Named& named : gauge.names.areas) {
      const HotArea& area = gauge.areas.areas()[named.index];
      const std::string name = std::string(header->name) + " " + named.name;
      for (const u32 button : {MOUSE_LEFT, MOUSE_RIGHT}) {
        const HotArea* reached = gauge.areas.at(area.box.middle(), button);
        EXPECT_TRUE(!(area.flags & button) || reached == &area) << name;
      }
    }
    for (const Named& part : gauge.names.parts)
      EXPECT_NE(gauge.run.showing(part.index), nullptr) << header->name << " " << part.name;
  }
}

TEST_F(OwnPanel, SoundsRunWhateverIsOpen) {
  for (std::uint32_t ident = 500; ident < 510; ++ident) cockpit.panels().close(ident);
  EXPECT_TRUE(open_windows(cockpit).empty());
  EXPECT_TRUE(cockpit.is_shown(*cockpit.find("Msnd")));
  EXPECT_TRUE(cockpit.is_shown(*cockpit.find("Hvsnd")));
}

}  // namespace
