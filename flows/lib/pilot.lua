-- A pilot: flies the aircraft by hand and sees nothing but the captain's panel, whose window (500) must
-- be open, with the beacon on the right needle of the radio magnetic indicator. Units are those of the
-- instruments: knots, feet, feet a minute, degrees, miles; right and up are positive.
--
--     local pilot = require("lib.pilot")
--     pilot.take_controls()
--     pilot.fly_until(function(seen) return seen.altitude > 3000 end, 120, "3,000 feet",
--                     {heading = 70, climb = 1500, speed = 190})
--
-- What the pilot is to do, a table or a function that makes it of what is seen, has one of each line
--
--     pitch | climb | altitude | slope = true | flare = true
--     bank | heading | localizer = true
--     throttle | speed
--
-- and any of the controls that fly{} takes besides.
local pilot = {}

-- ---- What the pilot sees

-- A drum moves up and down.
local function drum(gauge, part) return value(gauge, part, 2) end

local function altitude()
  return 10000 * drum("Altimeter", "ten_thousands_of_feet")
      + 1000 * drum("Altimeter", "thousands_of_feet") + drum("Altimeter", "hundreds_of_feet")
end

-- Miles to the station of receiver 1; nil while the read-out is blank.
local function distance()
  local hundreds = drum("Rmi", "left_distance_hundreds")
  if hundreds < 0 then return nil end
  return 100 * hundreds + 10 * drum("Rmi", "left_distance_tens")
      + drum("Rmi", "left_distance_units") + drum("Rmi", "left_distance_tenths") / 10
end

-- Of the scale, positive above the slope; nil while there is no signal.
local function slope()
  if not shown("Adi", "glide_slope_pointer") then return nil end
  return value("Adi", "glide_slope_pointer", 2) / 119
end

function pilot.look()
  return {
    seconds = now(),
    airspeed = value("Airspeed", "airspeed"),
    altitude = altitude(),
    climb = value("Vsitcas", "vertical_speed"),
    pitch = value("Adi", "horizon", 2),
    bank = -value("Adi", "horizon", 3),
    heading = value("Hsi", "compass_card", 3),
    height = value("Radalt", "radio_altitude"),                 -- 2,500 at most
    distance = distance(),
    localizer = -value("Hsi", "course_deviation_bar", 1) / 127,   -- of the scale: the beam is right
    slope = slope(),
    beacon = (value("Rmi", "right_bearing") + 90) % 360,          -- from the nose
  }
end

-- ---- What the pilot knows

local COURSE, SLOPE = 70, 3                        -- of the landing system
local LOCALIZER_SCALE, SLOPE_SCALE = 2.5, 0.7      -- degrees from the middle to the end
local FEET_A_SECOND, FEET_A_MINUTE = 1.688, 101.27 -- in a knot
local FEET_A_MILE = 6076

local function within(x, least, most) return math.max(least, math.min(most, x)) end
local function turn_to(heading, from) return (heading - from + 180) % 360 - 180 end

-- The angle of a climb.
local function degrees_of(climb, airspeed)
  return math.deg(math.atan(climb, FEET_A_MINUTE * math.max(airspeed, 60)))
end

-- Feet to the beam: as many for the same needle as it is far.
local function feet_aside(seen)
  return math.rad(LOCALIZER_SCALE * seen.localizer) * (seen.distance or 1) * FEET_A_MILE
end

-- ---- The hands, from one frame to the next

local last            -- what was seen a frame ago
local hands           -- where they are, and the pitch that they have found right
local rate            -- a second: how what is seen moves, with the small delay of an eye

local EYE = {pitch = 0.1, bank = 0.1, heading = 0.2, airspeed = 1, localizer = 1}  -- seconds

local function notice_rates(seen, dt)
  for name, delay in pairs(EYE) do
    local moved = name == "heading" and turn_to(seen.heading, last.heading) or seen[name] - last[name]
    rate[name] = rate[name] + (moved / dt - rate[name]) * math.min(1, dt / delay)
  end
end

-- The elevator for the moment, the trim for good.
local function hold_pitch(seen, wanted, dt)
  hands.elevator = within(0.1 * (wanted - seen.pitch) - 0.05 * rate.pitch, -1, 1)
  if seen.height > 50 then
    hands.pitch_trim = within(hands.pitch_trim + 0.25 * hands.elevator * dt, -1, 1)
  end
end

local function hold_bank(seen, wanted)
  hands.aileron = within(0.06 * (wanted - seen.bank) - 0.03 * rate.bank, -1, 1)
end

local function hold_speed(seen, wanted, dt)
  local acceleration = within(0.12 * (wanted - seen.airspeed), -1.5, 1.5)
  hands.throttle = within(hands.throttle + 0.06 * (acceleration - rate.airspeed) * dt, 0, 1)
end

-- The pitch for a climb: what has been right so far, more or less by what the path lacks.
local function pitch_for_climb(seen, climb, dt, firmness)
  local lacks = degrees_of(climb, seen.airspeed) - degrees_of(seen.climb, seen.airspeed)
  hands.pitch = within((hands.pitch or seen.pitch) + 0.4 * firmness * lacks * dt, -8, 15)
  return within(hands.pitch + 0.7 * lacks, -10, 15)
end

local function climb_for_altitude(seen, wanted)
  return within(6 * (wanted - seen.altitude), -1500, 1500)
end

-- Three degrees down at the airspeed, more or less by what the wind has been found to need.
local function climb_for_slope(seen, dt)
  local steepness = math.tan(math.rad(SLOPE))
  local feet_high = math.rad(SLOPE_SCALE * (seen.slope or 0)) * seen.height / steepness
  hands.sink = within((hands.sink or 0) + 0.3 * within(feet_high, -100, 100) * dt, -300, 300)
  local on_slope = -steepness * seen.airspeed * FEET_A_MINUTE - hands.sink
  return within(on_slope - 6 * feet_high, on_slope - 600, on_slope + 600)
end

-- Ever slower toward the ground.
local function climb_for_flare(seen) return -100 - 9 * seen.height end

-- Where the aircraft goes, told by how the needle moves, against where it should go.
local function bank_for_localizer(seen, firmness, most)
  local knots = math.max(seen.airspeed, 60)
  local feet_away = math.max(seen.distance or 10, 0.5) * FEET_A_MILE
  local drift = math.rad(LOCALIZER_SCALE)
      * (rate.localizer * feet_away - seen.localizer * knots * FEET_A_SECOND)
  local track = math.deg(math.asin(within(-drift / (knots * FEET_A_SECOND), -1, 1)))
  return within(firmness * (within(0.014 * feet_aside(seen), -30, 30) - track), -most, most)
end

local function pitch_for(wish, seen, dt)
  if wish.pitch then hands.pitch = wish.pitch return wish.pitch end
  if wish.flare then return pitch_for_climb(seen, climb_for_flare(seen), dt, 3) end
  local climb = wish.climb or wish.altitude and climb_for_altitude(seen, wish.altitude)
      or wish.slope and climb_for_slope(seen, dt)
  return climb and pitch_for_climb(seen, climb, dt, 1)
end

local function bank_for(wish, seen)
  return wish.bank or wish.heading and within(1.3 * turn_to(wish.heading, seen.heading), -25, 25)
      or wish.localizer and wish.flare and bank_for_localizer(seen, 2.5, 5)
      or wish.localizer and bank_for_localizer(seen, 1.3, 25)
end

local BESIDES = {"rudder", "flaps", "gear", "speed_brake", "lift_dumpers", "brakes", "tiller",
                 "parking_brake"}

local function move(wish, seen)
  local dt = seen.seconds - last.seconds
  notice_rates(seen, dt)
  local pitch, bank = pitch_for(wish, seen, dt), bank_for(wish, seen)
  if pitch then hold_pitch(seen, pitch, dt) end
  if bank then hold_bank(seen, bank) end
  if wish.speed then hold_speed(seen, wish.speed, dt) end
  hands.throttle = wish.throttle or hands.throttle
  local moved = {elevator = hands.elevator, pitch_trim = hands.pitch_trim, aileron = hands.aileron,
                 throttle = hands.throttle}
  for _, name in ipairs(BESIDES) do moved[name] = wish[name] end
  fly(moved)
end

-- ---- Flying

-- Puts the hands on the controls, as they stand.
function pilot.take_controls()
  local found = controls()
  hands = {elevator = found.elevator, pitch_trim = found.pitch_trim, aileron = found.aileron,
           throttle = found.throttle[1]}
  rate = {pitch = 0, bank = 0, heading = 0, airspeed = 0, localizer = 0}
  last = pilot.look()
end

-- Takes the hands off the stick and the feet off the pedals, for the autopilot.
function pilot.let_go() fly{elevator = 0, aileron = 0, rudder = 0} end

-- Flies by the wish until the condition holds of what is seen; fails after the timeout.
function pilot.fly_until(condition, timeout, what, wish)
  wait_until(function()
    local seen = pilot.look()
    if seen.seconds > last.seconds then
      move(type(wish) == "function" and wish(seen) or wish, seen)
      last = seen
    end
    return condition(seen)
  end, timeout, what)
  return last
end

-- The same with its name said.
function pilot.leg(name, wish, timeout, done)
  say(name)
  return pilot.fly_until(done, timeout, name .. " to end", wish)
end

-- Pedals that keep to the middle of the runway by the localizer.
function pilot.steer(seen)
  local heading = COURSE + within(0.15 * feet_aside(seen), -8, 8)
  return within(0.15 * turn_to(heading, seen.heading) - 0.1 * rate.heading, -1, 1)
end

-- Pedals that turn the nose down the runway before the wheels touch.
function pilot.straighten(seen)
  return within(0.08 * turn_to(COURSE, seen.heading) - 0.03 * rate.heading, -1, 1)
end

return pilot
