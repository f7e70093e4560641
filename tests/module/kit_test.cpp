/// The kit from which gauges are made, on a gauge that is made up here: what each row and area leaves
/// in the records.
#include <gtest/gtest.h>

#include "module/body.h"
#include "module/controls.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

constexpr u32 x_token = 11, y_token = 12, turn_token = 13;

f64 value_a(Element*) { return 0; }
f64 value_b(Element*) { return 0; }
f64 value_c(Element*) { return 0; }

char line[6];

/// A counter of figures: nine drums side by side.
constexpr Rows<9> figures(i32 strip, PanelPoint at) {
  constexpr const char* words[] = {"Figure 1", "Figure 2", "Figure 3", "Figure 4", "Figure 5",
                                   "Figure 6", "Figure 7", "Figure 8", "Figure 9"};
  Rows<9> all{};
  for (i32 i = 0; i < 9; ++i) {
    all[i] = drum(words[i], strip + i, {at.x + 10 * i, at.y}, {0, 10}, value_a).from(100 + i);
  }
  return all;
}

constinit u32 knob = 0;
constexpr Scale<2> scale{{{0, 10}, 0}, {{10, 0}, 50}};

extern constinit Gauge made_up, day_gauge;

constinit Body body{
    made_up,
    rows(lighting_overlay(910), figures(920, {5, 6}),
         card("Card", 930, 931, {1, 2}, {0, 360}, value_b).from(turn_token),
         slider("Slider", 940, {3, 4}, {.x = {x_token, value_a, 0.5}, .y = {y_token, value_b, -2}})
             .lit_at({7, 4})
             .lit_flags(0x3),
         sprite("Ball", 950, {60, 61}, {30, 31},
                {.x = {x_token, value_a, 1},
                 .y = {y_token, value_b, 2},
                 .rotation = {turn_token, value_c, -1}})
             .lit_centre({32, 33}),
         text("Line", {8, 9}, {40, 12}, {"Arial", 0x0476E8, 700}, line, value_a).from(x_token, y_token),
         needle("Free needle", 960, {20, 21}, {2, 3}, value_c).rate(0.25).shorter_way(),
         needle("Needle", 961, {20, 21}, {2, 3}, scale).from(x_token), icon("Flag", {970, 1}, {1, 1}),
         icon("Strip", {971, 11}, {1, 1}, value_a).mode(3, 0.0), lamp("Bulb", {980, 3}, {2, 2})),
    {
        labelled(click("Press me", {10, 20, 30, 40}, pushes<&knob>)),
        labelled(0x3053, increase("Knob up", {50, 20, 15, 40}, turns<&knob, 1, 10, 0, 100>,
                                  Press::either_held)),
        decrease("Knob down", {70, 20, 15, 40}, turns<&knob, -1, -10, 0, 100>, Press::drag),
    },
};

constinit Gauge made_up{{.name = "Made up", .width_mm = 100, .background = 900, .light_token = 620},
                        body};

constinit Body day_body{day_gauge,
                        DayOnly{rows(icon("Only by day", 990, {1, 1}), icon("This too", 992, {2, 2}))}};
constinit Gauge day_gauge{{.name = "Day", .width_mm = 10, .background = 901}, day_body};

/// A part of the made-up gauge and its lit copy.
struct Copies {
  const Element &day, &lit;
};
Copies copies_of(std::string_view name) {
  const std::vector<Element*> chain = rig::chain_of(made_up.header);
  for (const rig::NamedPart& part : tarnvale::names::parts(made_up.header)) {
    if (part.name == name) return {*part.element, *chain[part.index + chain.size() / 2]};
  }
  throw std::runtime_error("no part " + std::string(name));
}

bool operator==(PanelPoint a, PanelPoint b) { return a.x == b.x && a.y == b.y; }

TEST(Kit, ChainsBackgroundFirstSetAndLitCopy) {
  const std::vector<Element*> chain = rig::chain_of(made_up.header);
  constexpr std::size_t parts = 1 + 9 + 9;
  ASSERT_EQ(chain.size(), 1 + 2 * parts);
  EXPECT_EQ(made_up.lit, chain[1 + parts]);
  EXPECT_EQ(chain[1 + parts]->image_flags, 0x2000007u) << "an unlit cockpit opens unlit";
  EXPECT_EQ(rig::chain_of(day_gauge.header).size(), 3u);
  EXPECT_EQ(day_gauge.lit, nullptr);
  EXPECT_EQ(day_gauge.header.service, nullptr);
}

TEST(Kit, LitCopyDeviatesWhereItsRowSaysSo) {
  const auto [slider_day, slider_lit] = copies_of("slider");
  EXPECT_TRUE(slider_day.position == (PanelPoint{3, 4}));
  EXPECT_TRUE(slider_lit.position == (PanelPoint{7, 4}));
  EXPECT_EQ(slider_day.image_flags, 0x3u);
  EXPECT_EQ(slider_lit.image_flags, 0x3u);
  const auto [ball_day, ball_lit] = copies_of("ball");
  EXPECT_TRUE(ball_day.sprite.texture_center == (PanelPoint{30, 31}));
  EXPECT_TRUE(ball_lit.sprite.texture_center == (PanelPoint{32, 33}));
}

/// Its lit copy has the same, as everywhere.
TEST(Kit, APartHasItsValuesSourcesAndScales) {
  const auto part = [](std::string_view name) -> const Element& { return copies_of(name).day; };
  const Element& drum = part("figure_9");
  EXPECT_TRUE(drum.resource_id == 928 && drum.position.x == 85 && drum.moving_image.x.value == nullptr);
  EXPECT_EQ(drum.moving_image.mask_resource_id, -1);
  const MovingAxis& figures_axis = drum.moving_image.y;
  EXPECT_TRUE(figures_axis.source.token == 108 && figures_axis.minimum == 0 &&
              figures_axis.maximum == 10);

  const MovingImagePart& card = part("card").moving_image;
  EXPECT_EQ(card.mask_resource_id, 931);
  EXPECT_TRUE(card.x.source.token == turn_token && card.x.value == value_b && card.x.maximum == 360);
  EXPECT_EQ(card.y.value, nullptr);

  const SliderPart& slider = part("slider").slider;
  EXPECT_TRUE(slider.x_source.token == x_token && slider.x_value == value_a && slider.x_scale == 0.5);
  EXPECT_TRUE(slider.y_source.token == y_token && slider.y_value == value_b && slider.y_scale == -2);

  const SpritePart& ball = part("ball").sprite;
  EXPECT_TRUE(ball.x.source.token == x_token && ball.x.value == value_a && ball.x.scale == 1);
  EXPECT_TRUE(ball.y.source.token == y_token && ball.y.value == value_b && ball.y.scale == 2);
  EXPECT_TRUE(ball.rotation.value == value_c && ball.rotation.scale == -1);

  const StringPart& text = part("line").string;
  EXPECT_EQ(text.max_characters, sizeof line - 1);
  EXPECT_TRUE(text.foreground == 0x0476E8 && text.weight == 700 && text.text == line);

  const NeedlePart &free = part("free_needle").needle, &bound = part("needle").needle;
  EXPECT_TRUE(free.rate_limit == 0.25 && free.turn == TURN_SHORTER_WAY && free.table == nullptr);
  EXPECT_TRUE(bound.rate_limit == 0 && bound.turn == TURN_CLOCKWISE && bound.table == scale);
  EXPECT_TRUE(bound.table_length == 2 && bound.source.token == x_token && bound.value == nullptr);

  const IconPart &flag = part("flag").icon, &strip = part("strip").icon, &bulb = part("bulb").icon;
  EXPECT_TRUE(flag.image_count == 1 && flag.switch_mode == 0 && flag.switch_scale == 0);
  EXPECT_TRUE(strip.image_count == 11 && strip.switch_mode == 3 && strip.switch_scale == 0);
  EXPECT_TRUE(bulb.image_count == 3 && bulb.switch_mode == 1 && bulb.switch_scale == 2);
}

TEST(Kit, ALabelIsAGroupAroundItsArea) {
  const MouseArea* areas = made_up.header.mouse_areas;
  const u32 kinds[] = {MOUSE_GROUP,     MOUSE_GROUP,      MOUSE_TOOLTIP,   MOUSE_CLICK_AREA,
                       MOUSE_GROUP_END, MOUSE_GROUP,      MOUSE_TOOLTIP,   MOUSE_CLICK_AREA,
                       MOUSE_GROUP_END, MOUSE_CLICK_AREA, MOUSE_GROUP_END, MOUSE_END};
  for (std::size_t i = 0; i < std::size(kinds); ++i) ASSERT_EQ(areas[i].kind, kinds[i]) << i;
  EXPECT_STREQ(areas[2].tooltip, "Press me");
  EXPECT_TRUE(areas[2].help_id == 0 && areas[6].tooltip == nullptr && areas[6].help_id == 0x3053);
  EXPECT_TRUE(areas[3].x == 0 && areas[3].y == 0 && areas[3].width == 30 && areas[3].height == 40);
  struct Expected {
    PanelPoint corner;
    u32 flags;
    i32 cursor;
  };
  std::size_t i = 0;
  for (const Expected& each :
       {Expected{{10, 20}, 0x20000000, CURSOR_HAND}, Expected{{50, 20}, 0xA0200000, CURSOR_INCREASE},
        Expected{{70, 20}, 0x20800000, CURSOR_DECREASE}}) {
    const rig::NamedArea named = tarnvale::names::areas(made_up.header)[i++];
    EXPECT_TRUE(named.corner == each.corner) << named.name;
    EXPECT_EQ(named.area->mouse_flags, each.flags) << named.name;
    EXPECT_EQ(named.area->cursor, each.cursor) << named.name;
  }
}

TEST(Kit, ATwoButtonKnobStopsAtItsEnds) {
  rig::Host host;
  constexpr u32 left = MOUSE_LEFT, right = MOUSE_RIGHT;
  struct Row {
    MouseRoutine half;
    u32 from, buttons, to;
  };
  constexpr MouseRoutine up = turns<&knob, 5, 20, 10, 100>, down = turns<&knob, -5, -20, 10, 100>;
  for (const Row& row :
       {Row{up, 10, left, 15}, Row{up, 95, left, 100}, Row{up, 96, left, 100}, Row{up, 96, right, 100},
        Row{up, 100, left, 100}, Row{up, 200, left, 100}, Row{up, 79, right, 99},
        Row{up, 80, right, 80}, Row{up, 74, left | right, 99}, Row{up, 75, left | right, 80},
        Row{down, 100, left, 95}, Row{down, 15, left, 10}, Row{down, 14, left, 10},
        Row{down, 14, right, 10}, Row{down, 3, left, 10}, Row{down, 31, right, 11},
        Row{down, 30, right, 30}, Row{down, 36, left | right, 11}}) {
    knob = row.from;
    EXPECT_EQ(row.half({}, row.buttons), 0);
    EXPECT_EQ(knob, row.to) << (row.half == up ? "up from " : "down from ") << row.from;
    EXPECT_TRUE(rig::heard(click_sound_request)) << row.from;
  }
}

}  // namespace
