/// Pushback panel of the ground crew: by hand three buttons call the tug; automatically it pushes a set
/// distance, and turns the tail by a set angle from a set heading.
#include "gauges/controls/pushback_lights.h"
#include "module/catalogue.h"
#include "module/readout.h"

namespace tarnvale {
namespace {

// ---- Read-outs

constinit char right_angle_text[3], left_angle_text[3], distance_text[3];
constinit char heading_text[4], tail_text[4];
constinit char right_text[3], left_text[3], back_text[3];

/// By hand there is nothing to count.
template <std::size_t bytes>
f64 show(char (&text)[bytes], u32 value) {
  constexpr bool two = bytes == 3;
  if (tug.manual != 0) {
    write(text, two ? "--" : "---");
  } else {
    write_figures(text, static_cast<i32>(value), two ? 2 : 3);
  }
  return 0;
}

template <auto text, auto value>
f64 shows_figure(Element*) {
  return show(*text, *value);
}

template <auto text, auto step, auto programme>
f64 runs(Element* readout) {
  step(readout->string.source[1].value);
  return show(*text, (tug.*programme).progress);
}

f64 tail(Element* readout) {
  take_heading(readout->string.source[0].value, readout->string.source[1].value);
  return show(tail_text, tug.tail);
}

// ---- Buttons

template <auto mode, auto other>
void choose() {
  tug.*mode = tug.*mode == 0;
  if (tug.*mode == 1) tug.*other = 0;
  request(click_sound_request);
}

template <auto programme>
void press_programme() {
  arm(tug.*programme);
  request(click_sound_request);
}

void press_turn_button() {
  press_turn();
  request(click_sound_request);
}

template <u32... events>
void call_by_hand() {
  if (tug.manual == 1) (send(events), ...);
  request(click_sound_request);
}

/// The tail goes to one side: a step of its angle takes back the other side's.
template <auto angle, auto other, i32 fine, i32 coarse>
void turn_angle(u32 mouse_flags) {
  const u32 before = *angle;
  turn<angle, fine, coarse, 0, 90>(mouse_flags);
  if (*angle != before) *other = 0;
}

template <auto setting, u32 highest>
inline constexpr MouseRoutine sets_down = turns<setting, -1, -10, 0, highest>;
template <auto setting, u32 highest>
inline constexpr MouseRoutine sets_up = turns<setting, 1, 10, 0, highest>;
template <auto angle, auto other>
inline constexpr MouseRoutine angle_down = does<turn_angle<angle, other, -1, -10>>;
template <auto angle, auto other>
inline constexpr MouseRoutine angle_up = does<turn_angle<angle, other, 1, 10>>;

constexpr auto left_angle = &push_left_angle, right_angle = &push_right_angle;
constexpr auto automatic = &TugPanel::automatic, manual = &TugPanel::manual;
constexpr auto back = &TugPanel::back, left = &TugPanel::left, right = &TugPanel::right;

// ---- The panel

constexpr PanelSize figures{48, 18};
constexpr Type amber{"QUARTZ", text_colour::amber}, unlit{"QUARTZ", 0x020202},
    white{"QUARTZ", 0xFFFFFF};

/// The programmes count under the distance that is set.
constexpr PanelPoint distance_place{153, 148};

template <std::size_t bytes>
constexpr Row programme(const char* words, char (&buffer)[bytes], ValueRoutine step) {
  return text(words, distance_place, figures, unlit, buffer, step).from(0, token::simulation_rate);
}

constexpr Area key_down(const char* words, PanelPoint at, MouseRoutine routine) {
  return decrease(words, {at.x, at.y, 12, 20}, routine, Press::either);
}
constexpr Area key_up(const char* words, PanelPoint at, MouseRoutine routine) {
  return increase(words, {at.x, at.y, 12, 20}, routine, Press::either);
}

constexpr Area programme_button(const char* words, PanelPoint at, MouseRoutine routine) {
  return labelled(click(words, {at.x, at.y, 31, 29}, routine));
}
constexpr Area hand_button(const char* words, PanelPoint at, MouseRoutine routine) {
  return labelled(click(words, {at.x, at.y, 31, 21}, routine, Press::right));
}

constinit Body body{
    pushback,
    {
        lighting_overlay(24210),
        text("Right angle setting", {203, 115}, figures, amber, right_angle_text,
             shows_figure<&right_angle_text, right_angle>),
        lamp("Right programme light", 24180, {200, 62},
             turn_programme_light<right, right_turn_goes_on>),
        programme("Right programme progress", right_text, runs<&right_text, step_right, right>),
        text("Left angle setting", {102, 115}, figures, amber, left_angle_text,
             shows_figure<&left_angle_text, left_angle>),
        text("Heading setting", {39, 112}, figures, amber, heading_text,
             shows_figure<&heading_text, &push_heading>),
        text("Tail heading", {39, 69}, figures, white, tail_text, tail)
            .from(token::heading, token::heading),
        lamp("Turn light", 24190, {34, 92}, turn_light),
        lamp("Left programme light", 24170, {98, 62}, turn_programme_light<left, left_turn_goes_on>),
        programme("Left programme progress", left_text, runs<&left_text, step_left, left>),
        lamp("Back programme light", 24160, {151, 96}, back_light),
        programme("Back programme progress", back_text, runs<&back_text, step_back, back>),
        text("Distance setting", distance_place, figures, amber, distance_text,
             shows_figure<&distance_text, &push_distance>),
        lamp("Status light", {24130, 8}, {129, 29}, status),
        lamp("Manual light", 24150, {145, 72}, mode_light<manual, automatic>),
        lamp("Automatic light", 24140, {145, 59}, mode_light<automatic, manual>),
    },
    {
        click("Automatic button", {146, 60, 29, 12}, does<choose<automatic, manual>>),
        click("Manual button", {146, 73, 29, 12}, does<choose<manual, automatic>>),
        key_down("Distance setting down", {119, 149}, sets_down<&push_distance, 99>),
        key_up("Distance setting up", {133, 149}, sets_up<&push_distance, 99>),
        programme_button("Automatic Push Back", {145, 89}, does<press_programme<back>>),
        programme_button("Automatic Push Left", {94, 55}, does<press_programme<left>>),
        programme_button("Automatic Push Right", {195, 55}, does<press_programme<right>>),
        click("Turn button", {35, 91, 29, 16}, does<press_turn_button>),
        key_down("Heading setting down", {38, 136}, sets_down<&push_heading, 360>),
        key_up("Heading setting up", {52, 136}, sets_up<&push_heading, 360>),
        key_down("Left angle setting down", {90, 149}, angle_down<left_angle, right_angle>),
        key_up("Left angle setting up", {104, 149}, angle_up<left_angle, right_angle>),
        key_down("Right angle setting down", {196, 149}, angle_down<right_angle, left_angle>),
        key_up("Right angle setting up", {210, 149}, angle_up<right_angle, left_angle>),
        hand_button("Manual Push Back", {145, 120}, does<call_by_hand<event::pushback_call>>),
        hand_button("Manual Push Left", {94, 86},
                    does<call_by_hand<event::pushback_call, event::pushback_tail_left>>),
        hand_button("Manual Push Right", {195, 86},
                    does<call_by_hand<event::pushback_call, event::pushback_tail_right>>),
    },
};

}  // namespace

constinit Gauge pushback{{.name = "Pushback", .width_mm = 252, .background = 24120}, body};

}  // namespace tarnvale
