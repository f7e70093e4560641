/// Controls of one kind are worked alike: how they move, how they click, what the cursor says, how long
/// they test a light.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/module/controls.h"
#include "tests/rig/rows.h"

namespace {

using namespace tarnvale;
using namespace walk;

bool ends_with_one_of(std::string_view name, std::initializer_list<std::string_view> ends) {
  return std::ranges::any_of(ends, [&](std::string_view end) { return name.ends_with(end); });
}

/// Switches, levers and guards click like a toggle switch, buttons, knobs and selectors like a button,
/// and a test button is silent.
TEST(Kinds, EachClickIsHeardOnce) {
  const std::vector<Row> unlike_their_kind = rows_of("module/sounds.txt", 2);
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = control->part;
    const std::string& kind =
        part != nullptr && part->element->kind == ELEMENT_ICON ? part->name : control->name;
    const bool toggle = ends_with_one_of(kind, {"switch", "lever", "guard", "bank", "handle"});
    const std::string usual = is_test(control->name) ? "silent" : toggle ? "toggle" : "push";
    const std::string* unlike = row_like(unlike_their_kind, control->text());
    std::string heard;
    for (const std::string& sounds : control->sounds) {
      heard += heard.empty() ? "" : ", ";
      heard += sounds.empty() ? "silent" : sounds.substr(sounds.front() == ' ');
    }
    EXPECT_EQ(heard, unlike != nullptr ? *unlike : usual) << control->text();
  }
}

/// What the moves of a control are by its kind, from image to image of `last + 1`.
Moves moves_of(std::string_view control, std::string_view part, f64 last) {
  if (ends_with_one_of(control, {"up"}) && last == 2 && !part.ends_with("knob")) {
    return {{0, 1}, {1, 0}, {2, 0}};
  }
  if (ends_with_one_of(control, {"down"}) && last == 2 && !part.ends_with("knob")) {
    return {{0, 2}, {1, 0}, {2, 0}};
  }
  Moves moves;
  for (f64 at = 0; at <= last; ++at) {
    f64 to = at < last ? at + 1 : 0;
    if (control.ends_with("up")) to = std::min(at + 1, last);
    if (control.ends_with("down")) to = std::max(at - 1, 0.0);
    moves.emplace(at, to);
  }
  return moves;
}

/// "0>1 1>0" as a table writes them.
Moves read_moves(const std::string& text) {
  Moves moves;
  for (std::size_t at = 0; at + 2 < text.size(); at += 4)
    moves.emplace(text[at] - '0', text[at + 2] - '0');
  return moves;
}

/// A lever goes from the centre to its half and from anywhere else to the centre; a knob or selector
/// with two halves goes one step and stops at its ends; everything else goes round.
TEST(Kinds, EachHasItsMoves) {
  const std::vector<Row> unlike_their_kind = rows_of("module/moves.txt", 2);
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = control->part;
    if (part == nullptr || part->element->kind != ELEMENT_ICON) continue;
    if (is_test(control->name) || is_answered_by_the_host(*control)) continue;
    const f64 last = part->element->icon.image_count - 1.0;
    const std::string* own = row_like(unlike_their_kind, control->text());
    Moves expected = own != nullptr ? read_moves(*own) : moves_of(control->name, part->name, last);
    std::string guard = part->name;
    if (guard.ends_with("switch")) guard.replace(guard.size() - 6, 6, "guard");
    const rig::NamedPart* over_it = part_of(gauge_of(*control), guard);
    if (over_it != nullptr && over_it != part && over_it->name == guard) expected.emplace(0, 0);
    Moves seen = moves(*control, expected);
    // The right button tests a light; a button of this panel engages only where it can; a push that is
    // at its target sets the automatic mode again.
    const bool may_stay = (control->area->area->mouse_flags & MOUSE_RIGHT) != 0 ||
                          control->text().starts_with("Apset") || is_of_pushback(*control);
    if (may_stay) {
      std::erase_if(seen, [](const auto& move) { return move.first == move.second; });
    }
    if (part->name == "mode_selector") {  // on a glide slope the knob goes on by itself
      for (const auto& capture : {std::pair{2.0, 4.0}, {4.0, 2.0}, {4.0, 4.0}}) seen.erase(capture);
    }
    EXPECT_EQ(seen, expected) << control->text();
  }
}

/// A disconnect light that has latched goes dark when its switch is worked under the closed guard.
void darken_latched_lights(rig::Gauge& panel) {
  for (const std::string drive : {"drive_1_disconnect_", "drive_2_disconnect_"}) {
    panel.frame();
    if (panel.value(drive + "guard") == 1) panel.click(drive + "guard");
    panel.click(drive + "switch");
  }
}

TEST(Kinds, ALightUnderTestShinesForTwoSecondsAndTestsProlongEachOther) {
  rig::Host host;
  aircraft.duct_left_temp_normal = aircraft.duct_right_temp_normal = 1;
  f64& clock = host.tokens[token::clock_seconds];
  for (rig::Gauge& gauge : rig::built_gauges()) {
    std::vector<std::pair<std::string, const rig::NamedPart*>> tests;
    for (const rig::NamedArea& area : gauge.areas()) {
      const rig::NamedPart* light = part_of(gauge, area.name);
      const bool no_light = area.name == "quantity_test_switch" || area.name.starts_with("test_switch");
      if (is_test(area.name) && light != nullptr && !no_light) tests.emplace_back(area.name, light);
    }
    if (gauge.header().name == std::string("Acpwr")) darken_latched_lights(gauge);
    for (const auto& [button, light] : tests) {
      SCOPED_TRACE(std::string(gauge.header().name) + ' ' + button);
      const auto shown_after = [&](f64 seconds) {
        clock += seconds;
        gauge.frame();
        return gauge.value(*light);
      };
      const f64 dark = shown_after(100), lit = 1 - dark;
      gauge.click(button);
      EXPECT_EQ(shown_after(2.5), lit);
      gauge.click(tests.back().first);
      EXPECT_EQ(shown_after(1.5), lit);
      EXPECT_EQ(shown_after(1), dark);
      gauge.click(button);
      EXPECT_EQ(shown_after(-9), lit) << "the clock may run back by up to 16 seconds";
      EXPECT_EQ(shown_after(-8), dark) << "but not further";
    }
  }
}

TEST(Kinds, TheCursorSaysWhichWayAHalfTurns) {
  for (const Stimulus* control : controls()) {
    const rig::NamedPart* part = control->part;
    const bool lever = part != nullptr && part->name != "flap_lever" &&
                       ends_with_one_of(part->name, {"lever", "switch", "mode_selector"});
    // Pulled down, the flap lever gives more flap.
    const bool turned_round = part != nullptr && part->name == "flap_lever";
    const bool more = control->name.ends_with(turned_round ? "down" : "up");
    const bool less = control->name.ends_with(turned_round ? "up" : "down");
    const i32 expected = lever  ? CURSOR_HAND
                         : more ? CURSOR_INCREASE
                         : less ? CURSOR_DECREASE
                                : CURSOR_HAND;
    EXPECT_EQ(control->area->area->cursor, expected) << control->text();
  }
}

}  // namespace
