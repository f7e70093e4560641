-- A category II approach: the radios tuned on their heads, along a radial and down the landing system
-- by the autopilot's panels, the approach panel's lamps followed one by one; a go-around from the
-- decision height, a second approach, and a landing by hand.
local pilot = require("lib.pilot")
local autopilot = require("lib.autopilot")
local knobs = require("lib.knobs")
local landing = require("lib.landing")
local levers = require("lib.levers")

local LANDING_SYSTEM, BEACON = 11030, 11335  -- hundredths of a megahertz
local COURSE, RADIAL, CROSSWIND, BASE, INTERCEPT = 70, 250, 340, 160, 110
local APPROACH_ALTITUDE, DECISION_HEIGHT = 3500, 200
local APPROACH_SPEED = 130  -- with flaps 42

local CALLS_TO_DECISION = {"a2500", "a1000", "a500", "a400", "a300", "a200"}
local CALLS_TO_GROUND = {"a100", "a50", "a40", "a30", "a20", "a10"}

-- What the autopilot flies is watched until it is done.
local function watch(name, timeout, done)
  say(name)
  wait_until(function() return done(pilot.look()) end, timeout, name .. " to end")
end

local function turned_to(heading)
  return function(seen) return math.abs((seen.heading - heading + 180) % 360 - 180) < 5 end
end

local function expect_lamps(when, wanted)
  local shown = autopilot.approach_lamps()
  for name, colour in pairs(wanted) do
    expect(shown[name] == colour, string.format("%s: the %s lamp is %s", when, name, shown[name]))
  end
end

local function decided()
  return image("Radalt", "decision_height_light") == 0, image("Dhgpws", "decision_height_light") == 1,
         image("Adi", "decision_height_light") == 0
end

local function expect_no_decision()
  for _, lit in ipairs({decided()}) do expect(not lit, "a decision light is lit already") end
end

-- From the base leg, the beacon ahead to the left, toward the localizer.
local function intercept()
  watch("Base", 300, function(seen) return (seen.heading + seen.beacon) % 360 < 85 end)
  autopilot.hold_heading(INTERCEPT)
  levers.flaps(11)
  watch("Intercept", 120, turned_to(INTERCEPT))
end

-- On that heading: down the landing system until the decision height, every lamp in its turn.
local function fly_coupled_approach(picture_name)
  expect_lamps("not armed", {arm = false, localizer = "dark", slope = "dark"})
  autopilot.arm_approach()
  watch("Localizer alive", 300, function(seen)
    expect_lamps("no glide slope yet", {arm = false, localizer = "amber", slope = "dark"})
    return math.abs(seen.localizer) < 0.9
  end)
  watch("Localizer captured", 120, function(seen)
    return math.abs(seen.localizer) < 0.1 and math.abs(seen.bank) < 3
  end)
  expect(image("Apmode", "mode_selector") == 3 and autopilot.holds_altitude(), "the slope comes too early")
  knobs.turn(knobs.speed, 160)
  levers.flaps(18)

  watch("Glide slope received", 300, function(seen)
    expect(math.abs(seen.localizer) < 0.5, "the localizer is left")
    return autopilot.approach_lamps().slope == "green"
  end)
  wait(0.2)
  expect_lamps("received", {arm = true, localizer = "green", slope = "green", altitude = "green"})
  expect(image("Apmode", "mode_selector") == 4, "the selector does not go on to the glide slope")
  levers.gear("down")
  levers.flaps(25)
  knobs.turn(knobs.speed, 150)
  picture(picture_name .. "-armed", 500)

  watch("Glide slope captured", 300, function() return not autopilot.holds_altitude() end)
  expect_lamps("captured", {arm = true, localizer = "green", slope = "green", altitude = "dark"})
  levers.flaps(42)
  knobs.turn(knobs.speed, APPROACH_SPEED)
  expect(token("nose_gear_position") > 16000, "the gear is not down")

  watch("1,000 feet", 300, function(seen) return seen.height < 1000 end)
  expect_lamps("stable", {arm = true, localizer = "green", slope = "green", speed = "green"})
  expect(levers.flaps_at(42), "the flaps are not at 42")
  watch("Decision height", 120, function(seen)
    expect(math.abs(seen.localizer) < 0.5, "the approach leaves the localizer")
    expect(math.abs(seen.slope) < 0.5, "the approach leaves the glide slope")
    expect(autopilot.engaged(), "the autopilot has let go")
    if seen.height > DECISION_HEIGHT + 5 then expect_no_decision() end
    return seen.height < DECISION_HEIGHT - 5
  end)
  for _, lit in ipairs({decided()}) do expect(lit, "a decision light stays dark") end
  expect_near(pilot.look().airspeed, APPROACH_SPEED, 8, "the approach speed")
end

-- ---- North of the field, on the way to the radial

start_page()
wait(0.5)
click("Intro", "captain_running")
wait(1)
place_in_flight{altitude = 5000, airspeed = 220, heading = 225, along = 5000, right = -13500}
event("altimeters_to_qnh")
for _, window in ipairs({500, 503, 504}) do open_window(window) end
wait(0.5)
click("Rmi", "right_bearing_selector")  -- to the beacon at the outer marker

say("Autopilot")
autopilot.engage()
autopilot.hold_heading(225)
autopilot.hold_altitude(4000, -1000)
autopilot.hold_speed(200)

say("Radios")
click("Vhf1nav", "transfer_button")
wait(0.2)
expect(knobs.in_use("Vhf1nav") == BEACON, "receiver 1 is not on the beacon")
knobs.bring_into_use("Vhf2nav", LANDING_SYSTEM)
knobs.turn(knobs.course, RADIAL)
knobs.turn(knobs.decision_height, DECISION_HEIGHT)
picture("1-radios", 503)

-- ---- Along the radial, and around to the landing system

autopilot.navigate()
watch("Radial", 200, function(seen) return math.abs(seen.localizer) < 0.1 and turned_to(RADIAL)(seen) end)
knobs.turn(knobs.altitude, APPROACH_ALTITUDE)
watch("Outbound", 600, function(seen)
  expect(math.abs(seen.localizer) < 0.5, "the radial is left")
  return seen.distance > 23
end)
expect_near(pilot.look().altitude, APPROACH_ALTITUDE, 50, "the altitude")
picture("2-radial", 500)

autopilot.hold_heading(BASE)
knobs.turn(knobs.speed, 180)
levers.flaps(6)
click("Vhf1nav", "transfer_button")
knobs.turn(knobs.course, COURSE)
expect(knobs.in_use("Vhf1nav") == LANDING_SYSTEM, "receiver 1 is not on the landing system")
intercept()
fly_coupled_approach("3")
landing.expect_calls(CALLS_TO_DECISION)
picture("4-decision", 500)

-- ---- Around again

autopilot.let_go_of_throttles()
autopilot.let_go()
pilot.take_controls()
local decision, lowest = pilot.look(), math.huge
pilot.leg("Go-around", function(seen)
  lowest = math.min(lowest, seen.height)
  return {pitch = math.min(decision.pitch + 2 * (seen.seconds - decision.seconds), 10), heading = COURSE,
          throttle = 1}
end, 30, function(seen) return seen.climb > 500 end)
expect(lowest > 100, string.format("the go-around sinks to %.0f feet", lowest))
levers.flaps(18)
levers.gear("up")
pilot.leg("Climb", {climb = 1500, heading = COURSE, throttle = 0.95}, 90,
          function(seen) return seen.altitude > 1500 end)
expect_no_decision()
landing.expect_calls(CALLS_TO_DECISION)

pilot.let_go()
autopilot.engage()
autopilot.hold_speed(180)
autopilot.hold_heading(CROSSWIND)
autopilot.hold_altitude(APPROACH_ALTITUDE, 1500)
levers.flaps(11)
picture("5-around", 500)
watch("Crosswind", 120, turned_to(CROSSWIND))
wait(30)
autopilot.hold_heading(RADIAL)
levers.flaps(6)
watch("Downwind", 600, function(seen) return seen.distance and seen.distance > 18 end)
expect_near(pilot.look().altitude, APPROACH_ALTITUDE, 50, "the altitude downwind")
autopilot.hold_heading(BASE)
intercept()
fly_coupled_approach("6")

-- ---- Landing

autopilot.let_go_of_throttles()
autopilot.let_go()
pilot.take_controls()
pilot.leg("By hand", {slope = true, localizer = true, speed = APPROACH_SPEED}, 60,
          function(seen) return seen.height < 60 end)
landing.flare()
local ahead, aside = landing.roll_out()

local calls = {}
for _, heard in ipairs({CALLS_TO_DECISION, CALLS_TO_DECISION, CALLS_TO_GROUND}) do
  table.move(heard, 1, #heard, #calls + 1, calls)
end
landing.expect_calls(calls)
for _, sound in ipairs(sounds()) do
  expect(sound.name ~= "gpws" and sound.name ~= "stall",
         string.format("a warning at %.1f s: %s", sound.seconds, sound.name))
end
picture("7-stopped", 500)
say(string.format("Stopped %.0f m before the runway's end, %.1f m from its middle", ahead - 300, aside))
