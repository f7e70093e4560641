/// Call panel (pedestal): the cabin crew's announcements one by one, the crew's automatic calls, and
/// the ground crew's power. Every button stays lit until it is pressed again.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 taxi, safety, climb, descent, final_approach, roll_out, welcome;

/// An announcement speaks for itself: its button does not click.
template <auto light, SoundRequest announcement>
void announce() {
  flip(*light);
  if (*light != 0) request(announcement);
}

/// Until the crew has begun, the second press takes the welcome back.
void press_welcome() {
  flip(welcome);
  aircraft.sound_requests[ccwelcome_sound_request] = welcome;
  request(click_sound_request);
}

void press_ground_power() {
  push<&Aircraft::ground_power_connected>();
  request(aircraft.ground_power_connected != 0 ? extpwr_sound_request : extpwrdis_sound_request);
}

constexpr i32 large_light = 2480, small_light = 2470;

constexpr Box large(i32 x, i32 y) { return {x, y, 26, 26}; }
constexpr Box small(i32 x, i32 y) { return {x, y, 20, 20}; }

constinit Body body{
    selcall,
    {
        lamp("Taxi announcement button", large_light, {12, 20}, shows<&taxi>),
        lamp("Safety announcement button", large_light, {40, 20}, shows<&safety>),
        lamp("Climb announcement button", large_light, {68, 20}, shows<&climb>),
        lamp("Descent announcement button", large_light, {96, 20}, shows<&descent>),
        lamp("Final approach announcement button", large_light, {124, 20}, shows<&final_approach>),
        lamp("Roll-out announcement button", large_light, {152, 20}, shows<&roll_out>),
        lamp("Welcome announcement button", large_light, {124, 73}, shows<&welcome>),
        lamp("First officer's calls button", large_light, {152, 73},
             shows<&Aircraft::fo_callouts_enabled>),
        lamp("Ground power button", small_light, {29, 81}, shows<&Aircraft::ground_power_connected>),
        lamp("Automatic announcements button", small_light, {78, 81},
             shows<&Aircraft::cabin_announcements_on>),
    },
    {
        click("Taxi announcement button", large(11, 19), does<announce<&taxi, cctaxi_sound_request>>),
        click("Safety announcement button", large(39, 19),
              does<announce<&safety, ccsafety_sound_request>>),
        click("Climb announcement button", large(67, 19),
              does<announce<&climb, ccclimb_sound_request>>),
        click("Descent announcement button", large(95, 19),
              does<announce<&descent, ccdescent_sound_request>>),
        click("Final approach announcement button", large(123, 19),
              does<announce<&final_approach, ccfinal_sound_request>>),
        click("Roll-out announcement button", large(151, 19),
              does<announce<&roll_out, ccrollout_sound_request>>),
        click("Welcome announcement button", large(123, 72), does<press_welcome>),
        click("First officer's calls button", large(151, 72), pushes<&Aircraft::fo_callouts_enabled>),
        click("Ground power button", small(27, 79), does<press_ground_power>),
        click("Automatic announcements button", small(76, 79),
              pushes<&Aircraft::cabin_announcements_on>),
    },
};

}  // namespace

constinit Gauge selcall{{.name = "Selcall", .width_mm = 190, .background = 2460}, body};

}  // namespace tarnvale
