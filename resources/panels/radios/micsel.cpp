/// Audio selector: the loudspeaker above, microphone and identification buttons below, and the headset's
/// sockets beside them.
#include "resources/kit/metal.h"
#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::micsel {

/// Round holes in a sunk field, every second row half a hole aside.
void draw_loudspeaker(const Board& board) {
  const Canvas& canvas = board.canvas;
  const Box field{18, 9, board.canvas.size().width - 36.0, 46};
  sunk_field(canvas, field, 5, palette::mould);
  constexpr double pitch = 5, hole = 1.5;
  int row = 0;
  for (double y = field.y + 5; y < field.bottom() - 3.5; y += pitch * 0.87, ++row) {
    for (double x = field.x + (row % 2 == 0 ? 5 : 7.5); x < field.right() - 4; x += pitch) {
      fill(canvas, circle({x + 0.3, y + 0.4}, hole), faded(palette::white, 0.22));
      fill(canvas, circle({x, y}, hole), palette::well);
    }
  }
}

void draw_socket(const Canvas& canvas, Point c) {
  lever_nut(canvas, c, 8.4);
  set_linear(canvas, c - Point{5, 5}, c + Point{5, 5},
             {{0, palette::steel_deep}, {0.5, palette::steel}, {1, palette::steel_light}});
  fill(canvas, circle(c, 5.2));
  fill(canvas, circle(c, 3.6), palette::black);
}

constexpr double sockets_x = 128, sockets_y[] = {88, 114, 140};

void draw_fixed(const Board& board) {
  draw_loudspeaker(board);
  for (const double y : sockets_y) draw_socket(board.canvas, {sockets_x, y});
  for (const std::string_view button :
       {"vhf_1_microphone_button", "vhf_2_microphone_button", "both_microphones_button",
        "nav_1_audio_button", "nav_2_audio_button", "adf_audio_button"}) {
    radios::button_body(board.canvas, click_box(board.gauge, button).grown(-1));
  }
}

constexpr Legend name(std::string_view button, std::string_view text) {
  return {at(button, 0, -18), text, 7};
}

constexpr Item items[] = {
    CornerScrews{},
    Ornament{draw_fixed},
    name("vhf_1_microphone_button", "VHF 1"),
    name("vhf_2_microphone_button", "VHF 2"),
    name("both_microphones_button", "BOTH"),
    name("nav_1_audio_button", "NAV 1"),
    name("nav_2_audio_button", "NAV 2"),
    name("adf_audio_button", "ADF"),
    beginning({sockets_x + 13, sockets_y[0]}, "PHONES", 7),
    beginning({sockets_x + 13, sockets_y[1]}, "BOOM MIC", 7),
    beginning({sockets_x + 13, sockets_y[2]}, "HAND MIC", 7),
};

constexpr Art art[] = {
    plate(166, items).in_full_colour(),
    flush_lamp_art("vhf_1_microphone_button", {16, 16}, lens::green, "MIC", 5.5),
    flush_lamp_art("nav_1_audio_button", {16, 16}, lens::white, "ID", 6.5),
    flush_lamp_art("adf_audio_button", {16, 16}, lens::white, "ID", 6.5),
    flush_lamp_art(spare(3130, 2), {16, 16}, lens::blue, "MKR", 4.9),
    flush_lamp_art(spare(3140, 2), {16, 16}, lens::white, "DME", 4.9),
};

constinit Unit unit{"Micsel", art};

}  // namespace artwork::panels::micsel
