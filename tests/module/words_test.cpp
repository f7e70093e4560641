/// What parts and controls are called, and what their names promise.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "tests/rig/rig.h"

namespace {

bool is_plain(std::string_view words) {
  const auto is_letter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
  return !words.empty() && (std::isupper(static_cast<unsigned char>(words.front())) != 0) &&
         words.back() != ' ' && words.find("  ") == std::string_view::npos &&
         std::ranges::count_if(words, is_letter) >= 3;
}

template <typename Named>
void expect_plain_and_unlike(const rig::Gauge& gauge, const std::vector<Named>& all) {
  std::set<std::string> names;
  for (const Named& named : all) {
    EXPECT_TRUE(is_plain(named.words)) << gauge.header().name << ": '" << named.words << "'";
    EXPECT_TRUE(names.insert(named.name).second)
        << gauge.header().name << ": two are called " << named.name;
  }
}

TEST(Words, ArePlainAndUnlikeAllOthersOfTheGauge) {
  for (const rig::Gauge& gauge : rig::built_gauges()) {
    expect_plain_and_unlike(gauge, gauge.parts());
    expect_plain_and_unlike(gauge, gauge.areas());
  }
}

/// Flags by day, and what the part does without electrical power.
using Kind = std::pair<u32, u32>;
constexpr Kind lamp{0x7, FAILURE_HIDE}, by_hand{0x3, 0}, needle{0x83, FAILURE_ZERO},
    electric_picture{0x3, FAILURE_HIDE};

/// A lamp shines by itself and goes dark without power; what a hand moves does neither.
TEST(Words, SayWhetherAPartShinesAndWhatItDoesWithoutPower) {
  const std::set<std::string> shines_too{
      "Mancon manual_control_button", "Adi attitude_flag",     "Apset airspeed_hold_button",
      "Apset heading_hold_button",    "Apset approach_button", "Apset autopilot_master_button",
      "Apset autothrottle_button"};
  const std::set<std::string> unlit{"Hsi approach_light"};
  const std::set<std::string> coarse_needles{"Adi bank_pointer", "Adisafe bank_pointer",
                                             "Engtgt engine_1_gas_temperature",
                                             "Engtgt engine_2_gas_temperature"};
  for (const rig::Gauge& gauge : rig::built_gauges()) {
    for (const rig::NamedPart& part : gauge.parts()) {
      const std::string text = std::string(gauge.header().name) + ' ' + part.name;
      const std::string last = part.name.substr(part.name.rfind('_') + 1);
      const bool shines = last == "lamp" || last == "light" || last == "bar" || last == "dot";
      const Element& e = *part.element;
      const bool turns = e.kind == ELEMENT_NEEDLE || e.kind == ELEMENT_SPRITE;
      Kind expected = turns ? needle : electric_picture;
      if (coarse_needles.contains(text)) expected.first = 0x3;
      if (e.kind == ELEMENT_ICON && part.name != "instrument_lighting") {
        expected = (shines && !unlit.contains(text)) || shines_too.contains(text) ? lamp : by_hand;
      }
      if (text == "Apcon door_open_light") expected = electric_picture;
      if (text == "Altimeter altitude_alert") expected.first = 0x1;
      EXPECT_EQ(
          Kind(e.image_flags & ~IMAGE_HIDE_PICTURE, e.failures != nullptr ? e.failures->action : 0),
          expected)
          << text;
    }
  }
}

}  // namespace
