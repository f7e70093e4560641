-- The pictures of the documents: flown by tools/pictures, which copies them here.
local panels = {
  captain = 500, officer = 501, overhead = 502, pedestal = 503, throttle = 504,
  pushback = 505, utility = 506, gps = 507,
}

local function take(ending, names)
  for _, name in ipairs(names) do picture(name .. ending, panels[name]) end
end

start_page()
wait(0.5)
picture("start", 508)
click("Intro", "captain_running")
for _, window in pairs(panels) do open_window(window) end
wait(1)
click("Cainstlg", "instrument_lights_knob_up")
wait(3)
take("", {"overhead", "pedestal", "throttle", "pushback", "utility"})
place_in_flight{altitude = 3000, airspeed = 160, along = -18000, flaps = 18, gear = "down"}
event("altimeters_to_qnh")
wait(4)
take("", {"captain", "officer", "gps"})
event("panel_lights_toggle")
click("Cainstlg", "instrument_lights_knob_up")
wait(2)
take("-night", {"captain", "officer", "overhead", "pedestal", "throttle", "pushback", "utility", "gps"})
