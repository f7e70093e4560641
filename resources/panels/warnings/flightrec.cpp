/// Flight recorder panel: thumbwheels for the trip's number, the read-out, the event button, and a light for
/// each recorder.
#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::flightrec {

constexpr std::string_view mode = "readout_button", event = "event_button",
                           flight = "flight_recorder_light", voice = "voice_recorder_light";

/// The fields of the number and of the date lie over one another in one glass.
constexpr Box glass{130, 36, 53, 20};

void draw_glass(const Board& board) { display_window(board.canvas, glass); }

/// The rim of a wheel below its digit, ribbed for the finger.
void draw_wheel(const Canvas& canvas, Box slot) {
  fill(canvas, rounded(slot, 1.6), palette::well);
  const Box rim = slot.grown(-1);
  set_linear(canvas, {0, rim.y}, {0, rim.bottom()},
             {{0, palette::mould_dark}, {0.4, palette::steel}, {1, palette::mould_dark}});
  fill(canvas, rounded(rim, 1));
  for (double y = rim.y + 1.2; y < rim.bottom(); y += 2) {
    line(canvas, {rim.x + 0.6, y}, {rim.right() - 0.6, y}, 0.8, faded(palette::black, 0.65));
  }
}

void draw_wheels(const Board& board) {
  for (const std::string_view wheel :
       {"thumbwheel_1", "thumbwheel_2", "thumbwheel_3", "thumbwheel_4", "thumbwheel_5"}) {
    draw_wheel(board.canvas, part_box(board.gauge, wheel));
  }
}

void draw_digit(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box, 0), palette::face_light);
  print(canvas, box.centre(), std::to_string(image), {.size = 12, .colour = palette::mark});
}

constexpr Item items[] = {
    CornerScrews{},
    heading(middle(12), "FLIGHT RECORDER", 10),
    Legend{between("digit_1", "digit_5", 0, -17), "TRIP"},
    DrumFrame{"digit_1", "digit_5"},
    Ornament{draw_wheels},
    Legend{{156.5, 29}, "MIN / DATE", 7.5},
    Ornament{draw_glass},
    FixedButton{at(mode), 5.2, palette::mould_light},
    Legend{at(event, 0, -17), "EVENT"},
    Legend{at(flight, 0, -14.5), "FDR"},
    Legend{at(voice, 0, -14.5), "CVR"},
};

constexpr Art art[] = {
    plate(119, items),
    lamp_art("flight_recorder_light", {27, 20}, lens::green, "ON", 7.5),
    drawn_art("digit_1", {12, 16}, draw_digit),
};

constinit Unit unit{"Flightrec", art};

}  // namespace artwork::panels::flightrec
