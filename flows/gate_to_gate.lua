-- A whole flight: from the cold cockpit on the stand, pushed back, around by runway 07 and the
-- autopilot at 9,000 feet, down the landing system to the category II panel's lamps, and back to the
-- stand. Everything is worked on the panels and everyone is heard: the cabin crew's announcements at
-- their moments, the first officer's calls.
local overhead = require("lib.overhead")
local taxi = require("lib.taxi")
local ears = require("lib.ears")
local autopilot = require("lib.autopilot")
local knobs = require("lib.knobs")
local landing = require("lib.landing")
local levers = require("lib.levers")
local pilot = require("lib.pilot")

local FRAME = 1 / 18                 -- the crew counts the panel's frames
local CRUISE, PLATFORM = 9000, 3500  -- feet
local RUNWAY, CROSSWIND, DOWNWIND, BASE, INTERCEPT = 70, 340, 250, 160, 110
local ROTATE = 131                   -- with flaps 18
local APPROACH_SPEED = 130           -- with flaps 42

local TAKE_OFF_CALLS = {["80kts"] = 80, v1 = 126, rotate = 131}  -- knots
local HEIGHT_CALLS = {
  [2500] = "a2500", [1000] = "a1000", [500] = "a500", [400] = "a400", [300] = "a300", [200] = "a200",
  [100] = "a100",
}

-- ---- The stand

say("The start page")
start_page()
wait(1)
picture("01-start-page", 508)
click("Intro", "captain_cold_and_dark")
for _, window in ipairs({502, 503, 504}) do open_window(window) end
say("Cold and dark")
wait(2)
overhead.expect_dead()
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
wait(2)
click("Stewcall", "right_sign_switch")
local boarding = now() - FRAME
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
say("Both engines running")
picture("06-engines-running", 500)

-- ---- Out to runway 07

local LANE, TAXIWAY, HOLD = 300, 180, 105   -- metres to the right of the runway's middle

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
levers.flaps(6)
taxi.along({{pushed.along, LANE}, {0, LANE}, {0, TAXIWAY}, {-700, TAXIWAY}}, true)
ears.expect_said_at("ccsaftey", flaps_out + 201 * FRAME)
picture("07-taxi", "outside")
taxi.along({{-1470, TAXIWAY}, {-1470, HOLD}})
say("Holding short of runway 07")
picture("08-holding", "outside")
click("Selcall", "taxi_announcement_button")  -- its light goes out
for _, detent in ipairs({11, 18}) do
  levers.flaps(detent)
  wait(2)
end
knobs.turn(knobs.altitude, CRUISE)
knobs.turn(knobs.heading, RUNWAY)
knobs.turn(knobs.speed, 200)
taxi.along({{-1470, 0}, {-1380, 0}})
click("Lightsp", "landing_lights_levers")
expect_near(pilot.look().heading, RUNWAY, 3, "the heading on the runway")
for _, window in ipairs({502, 503}) do close_window(window) end
say("Lined up")
picture("09-lined-up", "outside")

-- ---- Up

pilot.take_controls()
pilot.leg("Take-off", function(seen)
  return {pitch = 0, bank = 0, throttle = 1, brakes = 0, rudder = pilot.steer(seen)}
end, 60, function(seen)
  ears.listen(seen)
  return seen.airspeed >= ROTATE + 1
end)
for name, knots in pairs(TAKE_OFF_CALLS) do ears.expect_said_when(name, "airspeed", knots, 3) end
picture("10-rotate", "outside")
local rotation = now()
pilot.leg("Rotate", function(seen)
  return {pitch = math.min(3 * (seen.seconds - rotation), 12), bank = 0,
          rudder = seen.height < 1 and pilot.steer(seen) or 0}
end, 20, function(seen) return seen.height > 35 and seen.climb > 500 end)
levers.gear("up")
local gear_up = now()
pilot.leg("First climb", {pitch = 12, heading = RUNWAY}, 90, function(seen) return seen.altitude > 1500 end)

-- ---- Around by the autopilot

local function watch(name, timeout, done)
  say(name)
  wait_until(function()
    local seen = pilot.look()
    ears.listen(seen)
    return done(seen)
  end, timeout, name .. " to end")
end

local function turned_to(heading)
  return function(seen) return math.abs((seen.heading - heading + 180) % 360 - 180) < 5 end
end

ears.expect_said_at("gearu", gear_up + 8, 1)
pilot.let_go()
autopilot.engage()
autopilot.hold_speed(180)
autopilot.hold_heading(RUNWAY)
autopilot.hold_altitude(CRUISE, 1800)
levers.flaps(6)
wait(6)
knobs.turn(knobs.speed, 230)
levers.flaps(0)
say("Autopilot")
picture("11-autopilot", 500)
watch("Climb", 200, function(seen) return seen.altitude > 3000 end)
autopilot.hold_heading(CROSSWIND)
watch("Crosswind", 200, function(seen) return seen.altitude > 5300 end)
local climbing = now()
autopilot.hold_heading(DOWNWIND)
ears.await("ccclimb", climbing + 301 * FRAME)
picture("12-climb", "outside")
watch("Downwind", 300, function(seen)
  return math.abs(seen.altitude - CRUISE) < 20 and math.abs(seen.climb) < 100
end)
ears.expect_said_when("altalert", "altitude", CRUISE - 960, 20)
knobs.turn(knobs.speed, 250)
wait(15)
say("Cruise")
picture("13-cruise", 500)

knobs.turn(knobs.speed, 220)
autopilot.hold_altitude(PLATFORM, -1800)
watch("Descent", 200, function(seen) return seen.altitude < 8000 end)
local descending = now()
ears.await("ccdescent", descending + 251 * FRAME)
picture("14-descent", "outside")

-- ---- Down the landing system

watch("Downwind", 300, function(seen) return seen.altitude < PLATFORM + 1000 end)
autopilot.hold_heading(BASE)
knobs.turn(knobs.speed, 200)
watch("Base", 300, function(seen) return (seen.heading + seen.beacon) % 360 < 85 end)
autopilot.hold_heading(INTERCEPT)
levers.flaps(6)
knobs.turn(knobs.speed, 180)
watch("Intercept", 120, turned_to(INTERCEPT))
autopilot.arm_approach()
levers.flaps(11)
watch("Localizer", 300, function(seen)
  return seen.distance and math.abs(seen.localizer) < 0.1 and math.abs(seen.bank) < 3
end)
expect_near(pilot.look().altitude, PLATFORM, 50, "the altitude on the localizer")
knobs.turn(knobs.speed, 160)
levers.flaps(18)
watch("Glide slope", 500, function() return autopilot.approach_lamps().slope == "green" end)
levers.flaps(25)
knobs.turn(knobs.speed, 150)
watch("Final approach", 300, function(seen) return not autopilot.holds_altitude() and seen.climb < -200 end)
levers.gear("down")
local gear_down = now()
levers.flaps(42)
knobs.turn(knobs.speed, APPROACH_SPEED)
wait_until(function() return token("nose_gear_position") > 13000 end, 10, "the gear to come down")
local gear_out = now()
ears.await("ccfinal", gear_out + 101 * FRAME)
ears.expect_said_at("geard", gear_down + 8.5, 1)
picture("15-final-approach", "outside")
watch("1,000 feet", 300, function(seen) return seen.height < 1000 end)
local lamps = autopilot.approach_lamps()
expect(lamps.localizer == "green" and lamps.slope == "green" and lamps.speed == "green",
       "the approach is not stable at 1,000 feet")
expect(levers.flaps_at(42), "the flaps are not at 42")
click("Ldmain", "lift_dump_arm_switch")
picture("16-coupled", 500)
watch("200 feet", 120, function(seen)
  expect(math.abs(seen.localizer) < 0.5 and math.abs(seen.slope) < 0.5, "the approach leaves its beams")
  return seen.height < 200
end)
picture("17-200-feet", "outside")
autopilot.let_go_of_throttles()
autopilot.let_go()
pilot.take_controls()
pilot.leg("By hand", {slope = true, localizer = true, speed = APPROACH_SPEED}, 60, function(seen)
  ears.listen(seen)
  return seen.height < 60
end)
for feet, call in pairs(HEIGHT_CALLS) do ears.expect_said_when(call, "height", feet, 12) end
landing.flare()

-- ---- To the stand

local touched, nose = now(), pilot.look().pitch
pilot.leg("Roll-out", function(seen)
  expect(math.abs(taxi.where().right) < 15, "the aircraft leaves the runway's middle")
  return {pitch = math.max(nose - 2 * (seen.seconds - touched), 0), bank = 0, throttle = 0,
          rudder = pilot.steer(seen), brakes = seen.seconds > touched + 2 and 0.35 or 0}
end, 60, function(seen) return seen.airspeed < 40 end)
for _, side in ipairs({"left", "right"}) do
  expect(image("Liftdump", side .. "_lift_dumper_light") == 3, "the " .. side .. " lift dumpers are in")
end
pilot.let_go()
say("Taxi in")
taxi.along({{550, 0}, {550, 100}}, true)
ears.expect_said_at("ccrollout", touched + 601 * FRAME)
picture("18-taxi-in", "outside")
for _, window in ipairs({502, 503}) do open_window(window) end
click("Lightsp", "landing_lights_levers")
for _, switch in ipairs({"arm", "deployment"}) do click("Ldmain", "lift_dump_" .. switch .. "_switch") end
for _, detent in ipairs({25, 18, 11, 6, 0}) do
  levers.flaps(detent)
  wait(2)
end
taxi.along({{550, TAXIWAY}, {470, TAXIWAY}, {470, LANE}, {200, LANE}, {200, 365}})
click("Thleft", "parking_brake_lever")
local stand = taxi.where()
expect_near(stand.along, 200, 3, "the place on the stand")
expect_near(stand.right, 365, 3, "the place on the stand")
say("On the stand")
picture("19-on-the-stand", "outside")

say("Shut down")
click("Lightspp", "taxi_lights_switch")
click("Selcall", "ground_power_button")
ears.expect_said_at("extpwr", now())
overhead.shut_down_engines()
click("Stewcall", "right_sign_switch")
wait(2)
click("Stewcall", "left_sign_switch")
open_window(504)
for _, switch in ipairs({"beacon_lights_switch", "strobe_lights_switch"}) do click("Lightspp", switch) end
click("Lightsp", "navigation_lights_switch")
click("Apcon", "door_switch")
expect(image("Apcon", "door_open_light") == 1, "the door stays closed")
overhead.switch_power_off()
click("Selcall", "ground_power_button")
ears.expect_said_at("extpwrdis", now())
for _, lights in ipairs({"navigation_lights", "beacon_lights", "strobe_lights", "landing_lights"}) do
  expect(token(lights) == 0, "the " .. lights .. " are left on")
end
picture("20-dark-again", 502)
ears.expect_all({
  "signs", "signs", "ccwelcome", "cctaxi", "flaps06", "ccsaftey", "flaps11", "flaps18",
  "80kts", "v1", "rotate", "gearu", "flaps11", "flaps06", "flaps00", "ccclimb", "altalert",
  "ccdescent", "altalert", "flaps06", "flaps11", "flaps18", "flaps25", "flaps42", "geard", "ccfinal",
  "a2500", "altalert", "altalert", "a1000", "a500", "a400", "a300", "a200", "a100", "a50", "a40", "a30",
  "a20", "a10", "ccrollout", "flaps25", "flaps18", "flaps11", "flaps06", "flaps00", "extpwr", "signs",
  "signs", "extpwrdis",
})
say("At the gate")
