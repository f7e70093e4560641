-- The autopilot, worked on its panels by clicks: those of the captain's window (500), which must be
-- open.
--
--     local autopilot = require("lib.autopilot")
--     autopilot.engage()
--     autopilot.hold_heading(250)
--     autopilot.hold_altitude(3500)
--     autopilot.hold_speed(180)
local knobs = require("lib.knobs")
local autopilot = {}

local MODES = {manual = 0, turbulence = 1, heading = 2, localizer = 3, glide_slope = 4, navigation = 5}

local function lit(button) return image("Apset", button) == 1 end

local function press_to(button, wanted)
  if lit(button) ~= wanted then
    click("Apset", button)
    wait(0.2)
  end
  expect(lit(button) == wanted, "the " .. button .. (wanted and " does not light" or " stays lit"))
end

function autopilot.engaged()
  return lit("autopilot_master_button") and image("Aplight", "autopilot_lamp") == 1
end

function autopilot.engage() press_to("autopilot_master_button", true) end
function autopilot.let_go() press_to("autopilot_master_button", false) end

-- With the glide slope captured the selector stands at it by itself, one step beyond where it was left.
function autopilot.select(mode)
  for _ = 1, 5 do
    local away = MODES[mode] - image("Apmode", "mode_selector")
    if away == 0 then return end
    click("Apmode", away > 0 and "mode_selector_up" or "mode_selector_down")
    wait(0.2)
  end
  expect(image("Apmode", "mode_selector") == MODES[mode], "the mode selector does not come to " .. mode)
end

function autopilot.hold_heading(degrees)
  knobs.turn(knobs.heading, degrees)
  autopilot.select("heading")
  press_to("heading_hold_button", true)
end

function autopilot.holds_altitude() return image("Apmode", "altitude_hold_switch") == 1 end

-- At the wheel's rate, which may be given: feet a minute.
function autopilot.hold_altitude(feet, climb)
  knobs.turn(knobs.altitude, feet)
  if climb then knobs.turn(knobs.climb, climb) end
  if not autopilot.holds_altitude() then click("Apmode", "altitude_hold_switch") end
  wait(0.2)
  expect(autopilot.holds_altitude(), "the altitude is not held")
end

function autopilot.hold_speed(knots)
  knobs.turn(knobs.speed, knots)
  press_to("autothrottle_button", true)
  press_to("airspeed_hold_button", true)
end

function autopilot.let_go_of_throttles() press_to("autothrottle_button", false) end

-- The course that is set on receiver 1.
function autopilot.navigate() autopilot.select("navigation") end

function autopilot.arm_approach()
  autopilot.select("localizer")
  press_to("approach_button", true)
end

-- The same in both columns of the approach panel.
local function lamp(name)
  local left = image("Cat2apsys", "left_" .. name .. "_lamp")
  local right = image("Cat2apsys", "right_" .. name .. "_lamp")
  expect(left == right, "the approach panel's columns differ")
  return left
end

local COLOURS = {[0] = "dark", "amber", "green"}

-- What the approach panel shows: whether the arm lamps are lit, and the others' colours: "dark",
-- "amber" (armed, or out of limits) or "green" (captured, or within limits).
function autopilot.approach_lamps()
  return {arm = lamp("arm") == 1, localizer = COLOURS[lamp("localizer")],
          slope = COLOURS[lamp("glide_slope")], speed = COLOURS[image("Cat2apsys", "speed_lamp")],
          altitude = COLOURS[image("Cat2apsys", "altitude_lamp")]}
end

return autopilot
