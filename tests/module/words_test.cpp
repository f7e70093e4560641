/// What parts and controls are called, and what their names promise.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "tests/module/controls.h"

namespace {

using walk::is_like;

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
  for (const rig::Gauge& gauge : rig::built_gauges()) {
    for (const rig::NamedPart& part : gauge.parts()) {
      const std::string text = std::string(gauge.header().name) + ' ' + part.name;
      const std::string last = part.name.substr(part.name.rfind('_') + 1);
      const bool shines = last == "lamp" || last == "light" || last == "bar" || last == "dot";
      const Element& e = *part.element;
      const bool turns = e.kind == ELEMENT_NEEDLE || e.kind == ELEMENT_SPRITE;
      Kind expected = turns ? needle : electric_picture;
      if (is_like(text, {"Adi* bank_pointer", "Engtgt *"})) expected.first = 0x3;
      if (e.kind == ELEMENT_ICON && part.name != "instrument_lighting") {
        const bool unlit = is_like(text, {"Hsi approach_light", "Transponder ident_light"});
        const bool shines_too =
            is_like(text, {"Mancon *_button", "Adi attitude_flag", "Apset *",
                           "Vhf1nav vor_check_button", "Nav1rad vor_check_button", "Dhgpws *_button",
                           "Dhgpws *_cover", "Flightrec event_button", "Micsel *", "Selcall *"});
        expected = (shines && !unlit) || shines_too ? lamp : by_hand;
      }
      if (is_like(text, {"Apcon door_open_light", "Vhf2nav vor_check_button", "Masterwarn *"}))
        expected = electric_picture;
      if (text == "Altimeter altitude_alert") expected.first = 0x1;
      if (text == "Dhgpws decision_height_tens") expected = by_hand;
      EXPECT_EQ(
          Kind(e.image_flags & ~IMAGE_HIDE_PICTURE, e.failures != nullptr ? e.failures->action : 0),
          expected)
          << text;
    }
  }
}

}  // namespace
