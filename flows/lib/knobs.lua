-- Knobs of two halves, turned on the panel until their read-outs show what is wanted: held while that
-- is far, then click by click.
--
--     local knobs = require("lib.knobs")
--     knobs.turn(knobs.heading, 250)
local knobs = {}

-- The number on a row of drums, each the figure of its power of ten.
local function figures(gauge, name, places)
  return function()
    local number = 0
    for place, factor in pairs(places) do number = number + factor * value(gauge, name:format(place), 2) end
    return number
  end
end

local UNITS = {hundreds = 100, tens = 10, units = 1}

local function knob(gauge, name, step, shows, round)
  return {up = {gauge, name .. "_up"}, down = {gauge, name .. "_down"}, step = step, shows = shows,
          round = round, name = name}
end

knobs.heading = knob("Apcourse", "selected_heading_knob", 1, figures("Apcourse", "selected_heading_%s", UNITS),
                     360)
knobs.climb = knob("Apcourse", "vertical_speed_thumb_wheel", 100,
                   function() return value("Apcourse", "vertical_speed_wheel", 2) end)
knobs.altitude = knob("Apalt", "selected_altitude_knob", 100,
                      figures("Apalt", "%s_of_feet", {ten_thousands = 10000, thousands = 1000, hundreds = 1}))
knobs.speed = knob("Apmode", "selected_speed_knob", 1, figures("Apmode", "selected_speed_%s", UNITS))
knobs.course = knob("Hsi", "course_knob", 1, figures("Hsi", "course_%s", UNITS), 360)
knobs.decision_height = knob("Radalt", "decision_height_knob", 10,
                             function() return value("Radalt", "decision_height_bug") end)

-- The rounds of a navigation receiver's head, whose knobs turn the frequency in waiting: whole
-- megahertz, and the hundredths.
local function rounds(head)
  local function drums(places) return figures(head, "standby_%s_of_megahertz", places) end
  local tens = drums({tens = 10})
  local function megahertz() return 100 + tens() + value(head, "standby_megahertz", 2) end
  return knob(head, "megahertz_knob", 1, megahertz),
         knob(head, "kilohertz_knob", 5, drums({tenths = 10, hundredths = 1}))
end

local function clicks_to(turned, wanted)
  local clicks = (wanted - turned.shows()) / turned.step
  return turned.round and (clicks + turned.round / 2) % turned.round - turned.round / 2 or clicks
end

-- A held knob moves at once, after 0.4 seconds again and then ten times a second.
function knobs.turn(turned, wanted)
  for _ = 1, 20 do
    local clicks = clicks_to(turned, wanted)
    if math.abs(clicks) < 0.5 then return end
    local half, far = clicks > 0 and turned.up or turned.down, math.abs(clicks) - 5
    if far > 0 then hold(half, 0.4 + 0.1 * far) else click(half) end
    wait(0.15)
  end
  expect(false, string.format("the %s does not come to %g, it shows %g", turned.name, wanted, turned.shows()))
end

-- Tunes the head's frequency in waiting, in hundredths of a megahertz.
function knobs.tune(head, hundredths)
  local megahertz, kilohertz = rounds(head)
  knobs.turn(megahertz, hundredths // 100)
  knobs.turn(kilohertz, hundredths % 100)
end

-- The frequency in use, in hundredths of a megahertz; nil while the display is dark.
function knobs.in_use(head)
  if image(head, "active_display_cover") == 1 then return nil end
  return 10000 + figures(head, "active_%s_of_megahertz", {tens = 1000, tenths = 10, hundredths = 1})()
      + 100 * value(head, "active_megahertz", 2)
end

-- Brings a frequency into use by the head's knobs and its transfer button.
function knobs.bring_into_use(head, hundredths)
  knobs.tune(head, hundredths)
  click(head, "transfer_button")
  wait(0.2)
  expect(knobs.in_use(head) == hundredths,
         string.format("%s is not on %.2f MHz", head, hundredths / 100))
end

return knobs
