-- The last of an approach to runway 07, flown by the pilot of lib.pilot: from the calls of the height
-- to a stop.
local pilot = require("lib.pilot")
local landing = {}

-- Of all that has been heard, these were heard in this order, and no oftener.
function landing.expect_calls(calls)
  local awaited, heard = {}, {}
  for _, name in ipairs(calls) do awaited[name] = true end
  for _, sound in ipairs(sounds()) do
    if awaited[sound.name] then table.insert(heard, sound.name) end
  end
  local wanted, got = table.concat(calls, ", "), table.concat(heard, ", ")
  expect(got == wanted, "the calls are " .. got .. ", not " .. wanted)
end

-- From 60 feet or a little more until the wheels touch.
function landing.flare()
  local sink
  pilot.leg("Flare", function(seen)
    return {flare = true, localizer = true, throttle = 0.3 * math.max(0, math.min(1, seen.height / 40 - 0.25)),
            rudder = seen.height < 9 and pilot.straighten(seen) or 0}
  end, 30, function(seen)
    if token("on_ground") == 0 then sink = -seen.climb end
    return token("on_ground") == 1
  end)
  say(string.format("Touchdown at %.0f ft/min", sink))
  expect(sink < 600, string.format("a touchdown at %.0f ft/min", sink))
end

-- Metres from the landing system's antenna, 300 beyond the runway's end, and from its middle line.
function landing.place()
  local ahead = token("nav1_distance") * 1852
  return ahead, ahead * math.tan(math.rad(2.5 * token("localizer_deviation") / 127))
end

-- From the touch-down to a stop on the runway, whose place it returns.
function landing.roll_out()
  local touched = now()
  local nose = pilot.look().pitch
  pilot.leg("Roll-out", function(seen)
    local _, aside = landing.place()
    expect(math.abs(aside) < 15, string.format("%.0f m from the centreline", aside))
    return {pitch = math.max(nose - 2 * (seen.seconds - touched), 0), bank = 0, throttle = 0,
            rudder = pilot.steer(seen), lift_dumpers = true, brakes = seen.seconds > touched + 2 and 0.5 or 0}
  end, 60, function(seen) return seen.airspeed < 20 end)
  fly{brakes = 1, parking_brake = true}
  wait(10)
  local ahead, aside = landing.place()
  expect(ahead > 300 and ahead < 3300 and math.abs(aside) < 15,
         string.format("stopped %.0f m from the antenna and %.1f from the middle", ahead, aside))
  return ahead, aside
end

return landing
