-- A circuit by hand: take-off from runway 07, left around it at 3,500 feet, down the landing system on
-- raw needles, landing. The crew's calls are heard on the way.
local pilot = require("lib.pilot")
local landing = require("lib.landing")

local RUNWAY, CROSSWIND, DOWNWIND, BASE, INTERCEPT = 70, 340, 250, 160, 110
local CIRCUIT_ALTITUDE = 3500
local ROTATE = 134                   -- with flaps 18
local APPROACH_SPEED = 130           -- with flaps 42

local TAKE_OFF_CALLS = {"80kts", "v1", "rotate"}
local LANDING_CALLS = {
  "a2500", "a1000", "a500", "a400", "a300", "a200", "a100", "a50", "a40", "a30", "a20", "a10",
}

local leg = pilot.leg

-- ---- On the runway

local function idles(engine) return token("engine_" .. engine .. "_core_speed") > 51 end

say("Start page")
start_page()
wait(0.5)
click("Intro", "captain_running")
wait(1)
expect(window_open(500), "the captain's panel is closed")
expect(idles(1) and idles(2), "the engines do not idle")

say("Lined up on runway 07")
place_on_runway()
event("altimeters_to_qnh")
click("Rmi", "right_bearing_selector")  -- to the beacon
fly{flaps = 18}
wait(8)  -- until they are out
expect_near(pilot.look().altitude, 364, 20, "the field's elevation")
picture("1-lined-up", 500)

-- ---- Up

pilot.take_controls()
leg("Take-off", function(seen)
  return {pitch = 0, bank = 0, throttle = 1, parking_brake = false, rudder = pilot.steer(seen)}
end, 60, function(seen) return seen.airspeed >= ROTATE end)

local rotation = now()
leg("Rotate", function(seen)
  return {pitch = math.min(3 * (seen.seconds - rotation), 12), bank = 0,
          rudder = seen.height < 1 and pilot.steer(seen) or 0}
end, 20, function(seen) return seen.height > 35 and seen.climb > 500 end)
leg("Gear up", {pitch = 12, heading = RUNWAY, gear = "up"}, 90,
    function(seen) return seen.altitude > 1500 end)
landing.expect_calls(TAKE_OFF_CALLS)
leg("Flaps 6", {climb = 1000, heading = RUNWAY, throttle = 0.9, flaps = 6}, 60,
    function(seen) return seen.airspeed > 180 end)
leg("Climb, crosswind", {climb = 1800, heading = CROSSWIND, speed = 200, flaps = 0}, 180,
    function(seen) return seen.altitude > CIRCUIT_ALTITUDE - 300 end)
leg("Level", {altitude = CIRCUIT_ALTITUDE, heading = CROSSWIND, speed = 200}, 60, function(seen)
  return math.abs(seen.altitude - CIRCUIT_ALTITUDE) < 30 and math.abs(seen.climb) < 200
end)
picture("2-level", 500)

-- ---- Around

local lowest, highest = math.huge, -math.huge
leg("Downwind", {altitude = CIRCUIT_ALTITUDE, heading = DOWNWIND, speed = 200}, 300, function(seen)
  lowest, highest = math.min(lowest, seen.altitude), math.max(highest, seen.altitude)
  return math.abs(seen.heading - DOWNWIND) < 10 and seen.beacon < 270
end)
expect(lowest > CIRCUIT_ALTITUDE - 100 and highest < CIRCUIT_ALTITUDE + 100,
       string.format("the turn and the leg went from %.0f to %.0f feet", lowest, highest))
local abeam = now()
leg("Beacon abeam", {altitude = CIRCUIT_ALTITUDE, heading = DOWNWIND, speed = 180, flaps = 11}, 130,
    function(seen) return seen.seconds > abeam + 110 end)
leg("Base", {altitude = CIRCUIT_ALTITUDE, heading = BASE, speed = 165, flaps = 18}, 180, function(seen)
  local to_beacon = (seen.heading + seen.beacon) % 360
  return math.abs(seen.heading - BASE) < 20 and to_beacon < RUNWAY + 14
end)
leg("Intercept", {altitude = CIRCUIT_ALTITUDE, heading = INTERCEPT, speed = 160}, 180,
    function(seen)
      return seen.distance and math.abs(seen.heading - INTERCEPT) < 20 and math.abs(seen.localizer) < 1
    end)

-- ---- Down

leg("Localizer", {altitude = CIRCUIT_ALTITUDE, localizer = true, speed = 150, flaps = 25, gear = "down"},
    180, function(seen) return seen.slope and seen.slope > -0.1 and math.abs(seen.localizer) < 0.5 end)
leg("Glide slope", {slope = true, localizer = true, speed = APPROACH_SPEED, flaps = 42}, 400,
    function(seen) return seen.height < 1000 end)
picture("3-approach", 500)
leg("1,000 feet", {slope = true, localizer = true, speed = APPROACH_SPEED}, 120, function(seen)
  local decided = seen.height < 200
  expect(decided or math.abs(seen.localizer) < 0.5, "the approach leaves the localizer")
  expect(decided or math.abs(seen.slope or 1) < 0.5, "the approach leaves the glide slope")
  return seen.height < 60
end)
landing.flare()
landing.expect_calls(LANDING_CALLS)

-- ---- Roll-out

local ahead, aside = landing.roll_out()
wait(5)
expect_near(landing.place(), ahead, 0.1, "the place after five seconds")
landing.expect_calls(LANDING_CALLS)
landing.expect_calls(TAKE_OFF_CALLS)
picture("4-stopped", 500)
say(string.format("Stopped %.0f m before the runway's end, %.1f m from its middle", ahead - 300, aside))
