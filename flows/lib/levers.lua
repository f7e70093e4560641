-- The flap lever on the throttle pedestal (window 504) and the gear lever on the captain's panel (500).
local levers = {}

local DETENTS = {[0] = 0, [6] = 1, [11] = 2, [18] = 3, [25] = 4, [42] = 5}

-- Puts the flap lever to a detent and leaves the flaps on their way. The lever shows where the flaps
-- are: they must have arrived where they were sent before.
function levers.flaps(degrees)
  local steps = DETENTS[degrees] - image("Thright", "flap_lever")
  for _ = 1, math.abs(steps) do click("Thright", steps > 0 and "flap_lever_down" or "flap_lever_up") end
end

function levers.flaps_at(degrees) return image("Thright", "flap_lever") == DETENTS[degrees] end

-- "up" or "down". The panel takes the lever for where a hand last put it, and does nothing when told so
-- again; through neutral it moves wherever the aircraft has been placed.
function levers.gear(position)
  click("Gear", "set_gear_neutral")
  click("Gear", "set_gear_" .. position)
end

return levers
