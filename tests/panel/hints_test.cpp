// What the cockpit says of itself, how its knobs take the wheel and its levers a click: over all its gauges.
#include "host/panel/hints.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "host/panel/text.h"
#include "host/panel/wheel.h"
#include "platform/platform_host.h"

namespace {

using namespace host;

class WholeCockpit : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    platform_choose_audio(PLATFORM_AUDIO_NONE);
    module = new GaugeModule(COCKPIT_DIR "/Tarnvale.GAU");
    cockpit = new Cockpit(*module, read_panel_config(SOURCE_DIR "/aircraft/panel/panel.cfg"));
    for (std::uint32_t ident = 500; ident <= 509; ++ident) cockpit->panels().open(ident);
    cockpit->frame();
    cockpit->aircraft().make_ready();  // with power no flag hides what is behind it
    cockpit->frame();
  }

  static void TearDownTestSuite() {
    delete cockpit;
    delete module;
  }

  template <typename Visit>
  static void each_gauge(Visit visit) {
    for (const GaugeHeader* header : module->gauges()) visit(*cockpit->find(header->name));
  }

  static GaugeModule* module;
  static Cockpit* cockpit;
};

GaugeModule* WholeCockpit::module = nullptr;
Cockpit* WholeCockpit::cockpit = nullptr;

// "What it is: what it does", the name being no name of the code's.
bool says_something(std::string_view text, std::string_view name) {
  const std::size_t colon = text.find(": ");
  return colon != std::string_view::npos && colon > 1 && text.size() > colon + 5 &&
         std::isupper(static_cast<unsigned char>(text.front())) && !text.ends_with('.') &&
         text.find('_') == std::string_view::npos && !text.starts_with(name);
}

TEST_F(WholeCockpit, EveryControlAndEveryReadOutHasWordsOfItsOwn) {
  EXPECT_EQ(cockpit->words().notes, std::vector<std::string>());
  std::size_t controls = 0;
  each_gauge([&](const CockpitGauge& gauge) {
    std::set<std::string_view> said;
    for (const Named& area : gauge.names.areas) {
      const std::string name = std::string(gauge.header().name) + " " + area.name;
      const std::string_view text = gauge.words.area(area.index);
      const HotArea& hot = gauge.areas.areas()[area.index];
      EXPECT_TRUE(says_something(text, area.name)) << name << ": '" << text << "'";
      EXPECT_TRUE(said.insert(text).second) << name << ": another control says so too";
      EXPECT_TRUE(text.starts_with(gauge.areas.tooltip(hot.box.middle()))) << name << ": " << text;
    }
    controls += gauge.areas.areas().size();
    EXPECT_EQ(gauge.names.areas.size(), gauge.areas.areas().size()) << gauge.header().name;
    for (const Named& part : gauge.names.parts) {
      const std::string name = std::string(gauge.header().name) + " " + part.name;
      EXPECT_TRUE(gauge.words.parts.contains(part.index)) << name;
      const std::string_view text = gauge.words.part(part.index);
      EXPECT_TRUE(text.empty() || says_something(text, part.name)) << name << ": '" << text << "'";
    }
  });
  EXPECT_EQ(controls, 355u);
}

// What the points of a gauge are told, in steps of two pixels; the second line of a half continues its heading.
std::set<std::string> told_by(const CockpitGauge& gauge, const BitmapStore& bitmaps) {
  std::set<std::string> told;
  for (i32 y = 0; y < gauge.size.height; y += 2)
    for (i32 x = 0; x < gauge.size.width; x += 2) {
      const Hint hint = hint_at(gauge, bitmaps, {x, y});
      const std::string heading = hint.words.substr(0, hint.words.find(": "));
      told.insert({hint.words, heading + ": " + hint.how, heading + ", " + hint.how});
    }
  return told;
}

TEST_F(WholeCockpit, ThePointerFindsEveryText) {
  const std::set<std::string> now_and_then{"Transponder ident_light", "Hsi to_and_from",
                                           "Hsi test_flag", "Altimeter below_sea_level_flag"};
  each_gauge([&](const CockpitGauge& gauge) {
    const std::set<std::string> told = told_by(gauge, module->bitmaps());
    for (const Named& area : gauge.names.areas)
      EXPECT_TRUE(told.contains(std::string(gauge.words.area(area.index))))
          << gauge.header().name << " " << area.name;
    for (const Named& part : gauge.names.parts) {
      const std::string name = std::string(gauge.header().name) + " " + part.name;
      const std::string text(gauge.words.part(part.index));
      EXPECT_NE(text.empty() || told.contains(text), now_and_then.contains(name)) << name;
    }
  });
}

bool has_word(const std::string& name, const std::set<std::string_view>& words) {
  const std::vector<std::string_view> parts = split(name, '_');
  return std::ranges::any_of(parts, [&](std::string_view word) { return words.contains(word); });
}

// By its name a knob, or pictured as one.
bool looks_like_a_knob(const std::string& gauge, const std::string& name) {
  const std::set<std::string> pictured{"Masterbat bus_tie_button", "Apcon test_switch_1",
                                       "Apcon test_switch_2"};
  if (pictured.contains(gauge + " " + name)) return true;
  if (gauge == "Windshield") return false;  // a lever with a knob on it
  return has_word(name, {"knob", "selector", "wheel", "thumbwheel", "bug", "freq", "setting"}) &&
         !has_word(name, {"switch", "lever", "guard", "handle", "light"});
}

TEST_F(WholeCockpit, WhatLooksLikeAKnobTakesTheWheelAndNothingElse) {
  int sent = 0;
  cockpit->on_event = [&](const SentEvent&) { ++sent; };
  each_gauge([&](const CockpitGauge& gauge) {
    for (const Named& area : gauge.names.areas) {
      const std::string name = std::string(gauge.header().name) + " " + area.name;
      const HotArea& hot = gauge.areas.areas()[area.index];
      const bool knob = looks_like_a_knob(gauge.header().name, area.name);
      EXPECT_EQ(takes_wheel(gauge, hot), knob) << name;
      EXPECT_TRUE(knob || !turn_wheel(gauge, hot.box.middle(), 1)) << name;
    }
  });
  EXPECT_EQ(sent, 0) << "what does not take the wheel has done something";
  cockpit->on_event = nullptr;
}

double shown(const CockpitGauge& gauge, std::size_t part) { return gauge.run.showing(part)->values[0]; }

TEST_F(WholeCockpit, SelectorsGoFromStopToStopAndNoFurther) {
  int selectors = 0;
  each_gauge([&](const CockpitGauge& gauge) {
    for (const WheelTurn& turn : gauge.words.turns) {
      if (turn.stops.empty() || std::string_view(gauge.header().name) == "Apcon") continue;
      ++selectors;
      const PanelPoint at = gauge.areas.areas()[turn.areas.front()].box.middle();
      const std::string name = gauge.header().name + std::to_string(turn.part);
      const auto turned = [&](int notches) {
        turn_wheel(gauge, at, notches);
        cockpit->frame();
        return shown(gauge, turn.part);
      };
      EXPECT_EQ(turned(-9), turn.stops.front().image) << name;
      for (const WheelStop& stop : std::span(turn.stops).subspan(1))
        EXPECT_EQ(turned(1), stop.image) << name;
      EXPECT_EQ(turned(1), turn.stops.back().image) << name << " goes on at its end";
      EXPECT_EQ(turned(-1), turn.stops[turn.stops.size() - 2].image) << name;
    }
  });
  EXPECT_EQ(selectors, 22);
}

TEST_F(WholeCockpit, OtherKnobsTurnBothWaysOrOnlyOn) {
  const struct {
    const char *gauge, *control, *part;
    int notches;
    double expected;
  } cases[] = {
      {"Apmode", "mode_selector_down", "mode_selector", 2, 2},
      {"Apmode", "mode_selector_up", "mode_selector", -1, 1},
      {"Flightrec", "thumbwheel_2", "digit_2", 2, 8},
      {"Flightrec", "thumbwheel_2", "digit_2", -3, 5},
      {"Transponder", "first_code_knob", "first_code_knob", 3, 3},
      {"Transponder", "first_code_knob", "first_code_knob", -2, 3},
  };
  for (const auto& [name, control, part, notches, expected] : cases) {
    const CockpitGauge& gauge = *cockpit->find(name);
    const Box& box = gauge.areas.areas()[gauge.names.area(control)->index].box;
    EXPECT_TRUE(turn_wheel(gauge, box.middle(), notches)) << "or the panel would scroll";
    cockpit->frame();
    EXPECT_EQ(shown(gauge, gauge.names.part(part)->index), expected) << name << " " << notches;
  }
}

TEST_F(WholeCockpit, NoControlHasADeadStrip) {
  int controls = 0;
  each_gauge([&](const CockpitGauge& gauge) {
    for (const auto& control : gauge.names.areas_of_one_control()) {
      ++controls;
      Box all = gauge.areas.areas()[control.front()].box;
      std::int64_t right = all.x + all.width, bottom = all.y + all.height;
      for (const std::size_t i : control) {
        const Box& box = gauge.areas.areas()[i].box;
        all.x = std::min(all.x, box.x), all.y = std::min(all.y, box.y);
        right = std::max(right, box.x + box.width), bottom = std::max(bottom, box.y + box.height);
      }
      for (std::int64_t y = all.y; y < bottom; ++y)
        for (std::int64_t x = all.x; x < right; ++x)
          ASSERT_NE(
              gauge.areas.at({static_cast<i32>(x), static_cast<i32>(y)}, MOUSE_LEFT | MOUSE_RIGHT),
              nullptr)
              << gauge.header().name << " " << x << "," << y;
    }
  });
  EXPECT_GT(controls, 40);
}

}  // namespace
