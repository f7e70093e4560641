/// Lift-dumper lights (main panel), and the automatic that runs armed dumpers out on the ground.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr f64 closed_throttle = 100, deployed_dumper = 5600;

/// What decides over the dumpers; exactly 1 is on the ground and 0 in the air.
struct Situation {
  f64 on_ground = read(token::on_ground);
  f64 throttle_1 = read(token::throttle_1);
  f64 throttle_2 = read(token::throttle_2);

  bool throttles_closed() const { return throttle_1 < closed_throttle && throttle_2 < closed_throttle; }
  bool throttles_open() const { return throttle_1 > closed_throttle && throttle_2 > closed_throttle; }
};

void deploy_when_armed() {
  const Situation now;
  if (aircraft.lift_dump_armed == 1 && now.on_ground == 1.0 && now.throttles_closed()) {
    send(event::lift_dumpers_out);
  }
}

/// The lights' pictures.
enum Light : u32 { dark, off, armed, out };

Light show_deployed() {
  aircraft.lift_dump_deployed = 1;
  return out;
}

template <u32 dumper>
f64 dumper_light(Element*) {
  const f64 position = read(dumper);
  const Situation now;
  if (aircraft.lift_dump_deployed == 0) {
    if (aircraft.lift_dump_armed == 0) return off;
    if (now.on_ground == 0.0) return armed;
    if (now.on_ground == 1.0 && now.throttles_open()) return armed;
    if (now.on_ground == 1.0 && now.throttles_closed()) return show_deployed();
  }
  return position > deployed_dumper ? show_deployed() : dark;
}

constinit Body body{
    liftdump,
    {
        lamp("Right lift dumper light", {13110, 4}, {40, 8}, dumper_light<token::right_lift_dumper>),
        lamp("Left lift dumper light", {13090, 4}, {7, 9}, dumper_light<token::left_lift_dumper>),
    },
};

}  // namespace

constinit Gauge liftdump{
    {.name = "Liftdump", .width_mm = 70, .background = 13080, .services = {.tick = deploy_when_armed}},
    body};

}  // namespace tarnvale
