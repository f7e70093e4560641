-- A whole flight: from the cold cockpit on the stand, pushed back, around by runway 07 and the autopilot at
-- 9,000 feet, down the landing system to the category II panel's lamps, and back to the stand. Everything is
-- worked on the panels and everyone is heard: the cabin crew's announcements at their moments, the first
-- officer's calls.
local overhead = require("lib.overhead")
local taxi = require("lib.taxi")
local ears = require("lib.ears")
local panels = require("lib.autopilot")
local pilot = require("lib.pilot")

local FRAME = 1 / 18                 -- the crew counts the panel's frames
local CRUISE, PLATFORM = 9000, 3500  -- feet
local RUNWAY, CROSSWIND, DOWNWIND, BASE, INTERCEPT = 70, 340, 250, 160, 110
local ROTATE = 134                   -- with flaps 18

-- ---- The stand

say("The start page")
start_page()
wait(1)
picture("01-start-page", 508)
click("Intro", "captain_cold_and_dark")
for _, window in ipairs({502, 503, 504}) do open_window(window) end
wait(2)
expect(image("Masterbat", "battery_lamp") == 0, "the battery lamp is lit in a dead aircraft")
expect(overhead.apu_running_lamp() == 0, "the APU lamp is lit in a dead aircraft")
picture("02-cold-and-dark", 500)

say("Battery and APU")
overhead.switch_battery_on()
click("Tempcon", "pack_1_switch")
click("Apu", "master_switch")
wait(1)
overhead.start_apu()
overhead.put_apu_on_line()
picture("03-apu-on-line", 502)

say("Boarding")
for _, switch in ipairs({"beacon_lights_switch", "strobe_lights_switch"}) do click("Lightspp", switch) end
click("Lightsp", "navigation_lights_switch")
click("Selcall", "automatic_announcements_button")
click("Selcall", "first_officer_s_calls_button")
for _, warning in ipairs({"stall_warning_button", "ground_proximity_button"}) do
  click("Dhgpws", warning)
end
click("Apcon", "door_switch")
expect(image("Apcon", "door_open_light") == 1, "the door is closed")
click("Stewcall", "left_sign_switch")
click("Stewcall", "right_sign_switch")
local boarding = now()
ears.await("ccwelcome", boarding + 401 * FRAME)
wait(12)
click("Apcon", "door_switch")
picture("04-boarded", 503)

-- ---- Pushback: 10 seconds straight back, then the tail to the right until the nose points at the runway

-- The right button turns by ten, the left one by one.
local function set_push(setting, wanted)
  while wanted - tonumber(text("Pushback", setting .. "_setting")) > 10 do
    right_click("Pushback", setting .. "_setting_up")
  end
  while tonumber(text("Pushback", setting .. "_setting")) < wanted do
    click("Pushback", setting .. "_setting_up")
  end
end

say("Pushback")
open_window(505)
wait(0.5)
set_push("distance", 30)
set_push("heading", tonumber(text("Pushback", "tail_heading")))
set_push("right_angle", 90)
click("Pushback", "automatic_button")
click("Pushback", "automatic_push_right")
wait_until(function() return image("Pushback", "turn_light") == 0 end, 60, "TURN to light")
click("Pushback", "turn_button")
wait(20)
picture("05-pushback", 505, 2)
wait_until(function() return image("Pushback", "automatic_light") == 1 end, 90, "the turn to end")
wait_until(function() return image("Pushback", "automatic_light") == 0 end, 20, "the push to end")
wait(5)
local pushed = taxi.where()
expect_near(pushed.turned, -90, 3, "the turn by the tug")
click("Thleft", "parking_brake_lever")
wait(1)
expect(image("Pushback", "status_light") == 1, "the brake is not seen")
close_window(505)

-- ---- Engines

say("Bleed air")
overhead.line_up_bleed_air()
overhead.start_engines()
open_window(504)
overhead.put_generators_on_line()
overhead.switch_apu_off()
picture("06-engines-running", 500)

-- ---- Out to runway 07

local LANE, TAXIWAY, HOLD = 300, 180, 105   -- metres to the right of the runway's middle

local function move_flaps(lever, times)
  for _ = 1, times do
    click("Thright", "flap_lever_" .. lever)
    wait(2)
  end
end

say("Taxi")
event("altimeters_to_qnh")
click("Rmi", "right_bearing_selector")  -- to the beacon
click("Selcall", "taxi_announcement_button")
ears.expect_said_at("cctaxi", now())
click("Lightspp", "taxi_lights_switch")
click("Thleft", "parking_brake_lever")
wait(0.5)
expect(image("Ttc", "parking_brake_light") == 0, "the parking brake holds")
local flaps_out = now()
move_flaps("down", 1)
expect(image("Thright", "flap_lever") == 1, "the flaps are not at 6")
taxi.along({{pushed.along, LANE}, {0, LANE}, {0, TAXIWAY}, {-700, TAXIWAY}}, true)
ears.expect_said_at("ccsaftey", flaps_out + 201 * FRAME)
picture("07-taxi", "outside")
taxi.along({{-1470, TAXIWAY}, {-1470, HOLD}})
picture("08-holding", "outside")
click("Selcall", "taxi_announcement_button")

say("Before take-off")
move_flaps("down", 2)
expect(image("Thright", "flap_lever") == 3, "the flaps are not at 18")
panels.set_altitude(CRUISE)
panels.set_heading(RUNWAY)
panels.set_speed(200)
taxi.along({{-1470, 0}, {-1380, 0}})
click("Lightsp", "landing_lights_levers")
expect_near(pilot.look().heading, RUNWAY, 3, "the heading on the runway")
picture("09-lined-up", "outside")

-- ---- Up

local function leg(name, wish, timeout, done)
  say(name)
  return pilot.fly_until(done, timeout, name .. " to end", wish)
end

pilot.take_controls()
leg("Take-off", function(seen)
  return {pitch = 0, bank = 0, throttle = 1, brakes = 0, rudder = pilot.steer(seen)}
end, 60, function(seen) return seen.airspeed >= ROTATE end)
ears.expect_said_at("rotate", now())
picture("10-rotate", 500)
local rotation = now()
leg("Rotate", function(seen)
  return {pitch = math.min(3 * (seen.seconds - rotation), 12), bank = 0,
          rudder = seen.height < 1 and pilot.steer(seen) or 0}
end, 20, function(seen) return seen.height > 35 and seen.climb > 500 end)
say("Gear up")
click("Gear", "set_gear_up")
leg("First climb", {pitch = 12, heading = RUNWAY}, 90, function(seen) return seen.altitude > 1500 end)
ears.expect_all({"signs"})
