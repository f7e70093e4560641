/// The functions that flows call.
///
/// Gestures. A spot is a control, click("Masterbat", "battery_switch"), or a pixel of a gauge's
/// background, click("Masterbat", 47, 99); either may have a name of the flow's own:
/// local battery = {"Masterbat", "battery_switch"}, then click(battery).
///     click(spot)  right_click(spot)  hold(spot, seconds)  right_hold(spot, seconds)
///     drag(spot, x, y [, seconds])    to another pixel of the same gauge
///     wheel(spot, notches)            away from the person is positive; a control's name without the
///                                     _up and _down of its halves will do
///
/// Time.
///     wait(seconds)  now()
///     wait_until(condition, timeout, what)   condition is a function; fails after the timeout
///
/// The aircraft. Tokens, events and failures by their number or their name.
///     token(which)  set_token(which, value)  release_token(which)
///     event(which [, value])  fail(which)  repair(which)
///     failures_per_hour(rate)      how many systems fail by chance; 0: none
///
/// Flying. Each takes a table of named fields; what it does not name stays as it is. flying_api.cpp
/// lists the fields with their ranges.
///     fly{elevator = 0.1, throttle = {0.6, 0.7}, flaps = 18, gear = "up"}
///     weather{wind_from = 340, wind_speed = 10, gusts = 1, pressure = 1013, warmer_by = -5}
///     controls()           where the controls stand, in a table as fly takes it
///     make_ready()         both engines at a warm idle, battery and avionics on
///     place_on_runway()    lined up as it is, at rest, the parking brake set
///     place_in_flight{altitude = 3000, airspeed = 160, heading = 70, along = -15000, right = 0}
///
/// Files beside the flow: local pilot = require("lib.pilot") gives what lib/pilot.lua returns.
///
/// What the cockpit shows. A part goes by its name, or by a bitmap and `nth`, which counts the elements
/// with that bitmap in the gauge from 1.
///     image(gauge, part)          image(gauge, bitmap [, nth])
///         the image of an icon, from 0; nil while it shows nothing
///     value(gauge, part [, axis])  value(gauge, bitmap [, nth [, axis]])
///         what a needle or another moving part shows
///     shown(gauge, part)          shown(gauge, bitmap [, nth])
///         whether it is in view
///     text(gauge, part)           text(gauge [, nth])
///         what a text field shows
///     events()     the key events since the last gesture: {number=, name=, value=, seconds=}
///     messages()   the texts that the module has shown in message boxes
///     sounds([since])  the sounds that have started since then, or the flow's beginning: {name=, seconds=}
///     sound_level(seconds)                 of the sounds' last part, 0 to 1
///     start_page()     the start page alone, and the aircraft as the ground crew hands it over
///     open_window(ident)  close_window(ident)  window_open(ident)
///     checklist(title)   the items of a list of the kneeboard:
///                        {what=, wanted=, gauge=, control=, window=, done=}
///     radio(request)     what the crew hears when it asks for push_back, taxi, take_off or landing
///
/// Expectations and notes.
///     expect(condition, what)  expect_near(actual, expected, tolerance, what)
///     expect_event(which [, value])        the gauges have sent it since the last gesture
///     say(text)  picture(name [, what [, zoom]])   what: a window's ident, a gauge's name or a page's
#pragma once

#include "host/script/flow_session.h"
#include "host/script/lua_runner.h"

namespace host {

/// Gives all of them to the runner. Both must outlive its runs.
void bind_flow_api(LuaRunner& runner, FlowSession& session);

/// Its parts.
void bind_gestures(LuaRunner& runner, FlowSession& session);
void bind_time(LuaRunner& runner, FlowSession& session);
void bind_aircraft(LuaRunner& runner, FlowSession& session);
void bind_flying(LuaRunner& runner, FlowSession& session);
void bind_pages(LuaRunner& runner, FlowSession& session);
void bind_readings(LuaRunner& runner, FlowSession& session);
void bind_expectations(LuaRunner& runner, FlowSession& session);

/// The number of a key event or token that the call names by number or by name.
/// Throws std::invalid_argument, with a name that looks alike.
std::uint32_t event_argument(const LuaCall& call, int index);
std::uint32_t token_argument(const LuaCall& call, int index);

/// The name of a key event; its number in hexadecimal if it has none.
std::string event_name(std::uint32_t number);

}  // namespace host
