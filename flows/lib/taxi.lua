-- Taxiing by tiller, throttles and brakes. In place of eyes on the yellow line there is the landing
-- system's station beyond the runway's end, which the captain's panel (window 500) shows: its bearing
-- on the left needle of the radio magnetic indicator, its distance on the horizontal situation
-- indicator.
--
--     taxi.along({{0, 300}, {0, 180}, {-1470, 180}})
--
-- goes from point to point: metres along runway 07 from its middle, and to its right.
local taxi = {}

local COURSE = 70
local STATION_ALONG = 1800
local TENTHS_OF_MILES_A_METRE = 0.0054
local WHEELBASE, FULL_TILLER = 11.7, 60             -- metres, degrees
local LOOK_AHEAD = 20                               -- metres
local STRAIGHT, CORNER = 14, 4.5                    -- metres a second
local BRAKING = 0.5                                 -- metres a second squared, for corners and stops

local function within(x, least, most) return math.max(least, math.min(most, x)) end
local function heading() return value("Hsi", "compass_card", 3) end

-- Where the aircraft is, and its heading against the runway's, in degrees.
function taxi.where()
  local distance = value("Hsi", "right_distance_thousands", 2) / TENTHS_OF_MILES_A_METRE
  local turned = (heading() - COURSE + 180) % 360 - 180
  local bearing = math.rad(value("Rmi", "left_bearing") + 90 + turned)
  return {along = STATION_ALONG - distance * math.cos(bearing), right = -distance * math.sin(bearing),
          turned = turned}
end

-- ---- The way

-- Legs from where the aircraft is: their beginnings, directions and lengths.
local function legs_of(points)
  local from, legs = taxi.where(), {}
  for _, point in ipairs(points) do
    local to = {along = point[1], right = point[2]}
    local length = math.sqrt((to.along - from.along) ^ 2 + (to.right - from.right) ^ 2)
    table.insert(legs, {from = from, length = length, along = (to.along - from.along) / length,
                        right = (to.right - from.right) / length})
    from = to
  end
  return legs
end

local function metres_gone(leg, at)
  return (at.along - leg.from.along) * leg.along + (at.right - leg.from.right) * leg.right
end

-- The point of the way so many metres ahead of the beginning of leg `i`; the last leg has no end.
local function point_ahead(legs, i, metres)
  while i < #legs and metres > legs[i].length do
    metres, i = metres - legs[i].length, i + 1
  end
  local leg = legs[i]
  return {along = leg.from.along + leg.along * metres, right = leg.from.right + leg.right * metres}
end

-- ---- Hands and feet

-- The nose wheel's angle that leads on a circle to a point.
local function tiller_to(point, at)
  local to_along, to_right = point.along - at.along, point.right - at.right
  local aside = math.rad((math.deg(math.atan(to_right, to_along)) - at.turned + 180) % 360 - 180)
  local curve = 2 * math.sin(within(aside, -1.5, 1.5)) / math.sqrt(to_along ^ 2 + to_right ^ 2)
  return within(math.deg(math.atan(WHEELBASE * curve)) / FULL_TILLER, -1, 1)
end

-- The speed from which it can still slow down to another one.
local function speed_before(speed, metres)
  return math.min(STRAIGHT, math.sqrt(speed ^ 2 + 2 * BRAKING * math.max(metres, 0)))
end

local function hold_speed(wanted, speed)
  local lacks = wanted - speed
  return within(0.16 + 0.05 * lacks, 0, 0.4), within(-0.25 * (lacks + 0.4), 0, 0.6)
end

-- ---- Taxiing

-- Goes along the points and stops at the last one; with `rolling` it does not stop there.
function taxi.along(points, rolling)
  local legs, i = legs_of(points), 1
  local at, seconds, speed = legs[1].from, now(), nil
  wait_until(function()
    if now() == seconds then return false end
    local here, dt = taxi.where(), now() - seconds
    local moved = math.sqrt((here.along - at.along) ^ 2 + (here.right - at.right) ^ 2) / dt
    speed = speed and speed + (moved - speed) * math.min(1, dt / 0.4) or moved
    at, seconds = here, now()
    while i < #legs and metres_gone(legs[i], at) > legs[i].length do i = i + 1 end
    local gone = metres_gone(legs[i], at)
    local left = legs[i].length - gone
    local last = i == #legs
    local wanted = speed_before(last and not rolling and 0 or CORNER, left - (last and 0 or LOOK_AHEAD))
    local in_corner = i > 1 and gone < LOOK_AHEAD
    local throttle, brakes = hold_speed(in_corner and math.min(wanted, CORNER) or wanted, speed)
    fly{tiller = tiller_to(point_ahead(legs, i, gone + LOOK_AHEAD), at), throttle = throttle,
        brakes = brakes}
    return last and (left < 1 or not rolling and left < 4 and speed < 0.3)
  end, 600, "the end of the way")
  fly{tiller = 0, throttle = 0, brakes = rolling and 0 or 1}
end

return taxi
