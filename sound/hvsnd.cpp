/// Cabin announcements: an invisible gauge that times the six that the cabin crew makes by itself. Each
/// has a counter of the frames for which its conditions held, and is made when that reaches its target:
/// once, as the counter goes on beyond it. A counter that stops exactly there asks for its announcement
/// in every frame, and the announcement is heard again as soon as it has ended.
#include "module/body.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/numbers.h"
#include "module/readout.h"

namespace tarnvale {
namespace {

struct Announcement {
  SoundRequest sound;
  u32 target;        ///< frames
  bool (*counts)();  ///< while the crew's announcements are on
  bool (*starts_anew)();
  u32 count = 0;
  char window[3] = "";
};

bool on_ground() { return whole_u32(read(token::on_ground)) == 1; }
bool signs_on() { return aircraft.cabin_sign_right_on == 1; }
bool boarding() { return aircraft.apcon_switch_c_on == 1; }
bool boarded() { return aircraft.apcon_switch_c_on == 0; }

template <u32 token>
bool at_zero() {
  return read(token) == 0.0;
}

constinit Announcement welcome{ccwelcome_sound_request, 400,
                               [] { return on_ground() && boarding() && signs_on(); }, boarded};

constinit Announcement safety{ccsafety_sound_request, 200,
                              [] {
                                const f64 flaps = read(token::flap_position);
                                return on_ground() && boarded() && flaps > 0 && flaps < 4200;
                              },
                              boarding};

constinit Announcement climb{
    ccclimb_sound_request, 300,
    [] { return read(token::indicated_altitude) > 5300 && read(token::vertical_speed) > 300; },
    at_zero<token::vertical_speed>};

constinit Announcement descent{ccdescent_sound_request, 250,
                               [] {
                                 const f64 altitude = read(token::indicated_altitude);
                                 return altitude > 7000 && altitude < 8000 &&
                                        read(token::vertical_speed) < -300 && signs_on();
                               },
                               at_zero<token::vertical_speed>};

constinit Announcement final_approach{
    ccfinal_sound_request, 100,
    [] { return read(token::vertical_speed) < -200 && read(token::nose_gear_position) > 13000; },
    at_zero<token::nose_gear_position>};

constinit Announcement rollout{ccrollout_sound_request, 600,
                               [] { return on_ground() && read(token::flap_position) > 13000; },
                               at_zero<token::flap_position>};

f64 make_announcements(Element*) {
  if (aircraft.cabin_announcements_on == 1) {
    for (const Announcement* a : {&welcome, &safety, &climb, &descent, &final_approach, &rollout}) {
      if (a->count == a->target) request(a->sound);
    }
  }
  return aircraft.cabin_announcements_on;
}

template <auto announcement>
f64 count_frame(Element* readout) {
  Announcement& a = *announcement;
  if (aircraft.cabin_announcements_on == 1 && a.counts()) ++a.count;
  if (a.starts_anew()) a.count = 0;
  write(a.window, "  ");
  return limited(readout->string.source[0].value, 0, 740);
}

template <auto announcement>
constexpr Row counter(const char* words) {
  return text(words, {0, 0}, {46, 16}, {"ARIAL", 0x000000}, announcement->window,
              count_frame<announcement>)
      .from(token::time_of_day);
}

constinit Body body{
    hvsnd,
    DayOnly<7>{
        rows(icon("Announcements", {10, 1}, {0, 0}, make_announcements),
             counter<&rollout>("Rollout announcement"), counter<&final_approach>("Final announcement"),
             counter<&descent>("Descent announcement"), counter<&climb>("Climb announcement"),
             counter<&safety>("Safety announcement"), counter<&welcome>("Welcome announcement"))},
};

}  // namespace

constinit Gauge hvsnd{{.name = "Hvsnd", .width_mm = 20, .background = 10}, body};

}  // namespace tarnvale
