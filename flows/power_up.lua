-- From a cold and dark cockpit to both generators on line and the night lighting, and back to day.

-- What the panels show.
local function battery_lamp() return image("Masterbat", "battery_lamp") end
local function avionics_lamp() return image("Avimaster", "avionics_lamp") end
local function disconnect_light_lit() return image("Acpwr", "drive_1_disconnect_light") == 0 end
local function dc_amperes() return value("Acdc", "dc_ammeter") end
local function dc_volts() return value("Acdc", "dc_voltmeter") end
local function ac_volts() return value("Acdc", "ac_voltmeter") end
local function ac_frequency() return value("Acdc", "ac_frequency_meter") end

-- Presses a control and listens: the click must come with the press and stand out of the silence.
local function press(gauge, control)
  wait(1)
  expect((sound_level(0.4) or 0) < 0.001, "there is a noise before " .. control)
  click(gauge, control)
  wait(0.1)
  expect((sound_level(0.2) or 1) > 0.005, control .. " makes no click")
end

say("Cold and dark")
wait(2)
expect(battery_lamp() == 0, "the battery lamp is lit in a dead aircraft")
expect(avionics_lamp() == 0, "the avionics lamp is lit in a dead aircraft")
expect_near(dc_volts(), 0, 0, "the DC voltmeter in a dead aircraft")
picture("1-cold-and-dark")

say("Battery on")
press("Masterbat", "battery_switch")
expect_event("battery_toggle")
expect(#events() == 5, "the battery switch moves the alternators' lines with it")
expect(token("battery") == 1, "the battery has not followed its switch")
expect(battery_lamp() == 1, "the battery lamp is dark")

say("Battery meters")
wheel("Acdcsw", "dc_meter_selector", 1)
expect(image("Acdcsw", "dc_meter_selector") == 1, "the DC selector is not at the battery")
wait(1)
expect_near(dc_amperes(), token("dc_amperes"), 1, "the battery current")
expect(dc_amperes() < -5, "the battery does not supply the aircraft")
expect_near(dc_volts(), token("dc_voltmeter") + 5, 1, "the battery voltage")
picture("2-battery", 502)

say("Avionics on")
press("Avimaster", "avionics_master_switch")
expect_event("avionics_toggle")
expect(avionics_lamp() == 1, "the avionics lamp is dark")
wait(1)
expect(dc_amperes() < -20, "the avionics draw nothing from the battery")

say("Light test and emergency lights")
expect(not disconnect_light_lit(), "the disconnect light is lit without a test")
click("Acpwr", "drive_1_disconnect_light_test")
expect(disconnect_light_lit(), "the test does not light the disconnect light")
wait_until(function() return not disconnect_light_lit() end, 4, "the end of the light test")
expect(image("Emerlight", "armed_lamp") == 0, "the emergency lights are armed already")
press("Emerlight", "emergency_lights_switch")
expect(image("Emerlight", "armed_lamp") == 1, "the emergency lights are not armed")

say("Ground power")
event("external_power_connect")
press("Masterbat", "external_power_switch")
expect(image("Masterbat", "external_power_switch") == 1, "the external power switch is not up")
wait(1)
expect(dc_amperes() > 5, "ground power does not charge the battery")
wheel("Acdcsw", "dc_meter_selector", 3)
wait(0.5)
expect_near(dc_volts(), token("dc_voltmeter") - 18, 1, "the external voltage")
wheel("Acdcsw", "ac_meter_selector", 2)
wait(0.5)
expect_near(ac_volts(), token("ac_bus_1_voltmeter") + 92, 1, "the voltage of AC bus 1")
wheel("Acdcsw", "ac_meter_selector", 5)
wait(0.5)
expect_near(ac_volts(), 270, 0, "the external AC voltage")
expect_near(ac_frequency(), 18, 0, "the external AC frequency")
wheel("Acdcsw", "ac_meter_selector", -5)
picture("3-meters", "Acdc", 3)

say("Both engines start")
event("automatic_start")
wait_until(function()
  return token("generator_1_load") > 0 and token("generator_2_load") > 0
end, 180, "both generators to come on line")

say("Generators on")
expect_near(value("Acload", "generator_1_load"), 0, 0, "the load meter of a generator that is off")
press("Ctr", "generator_1_switch_up")
press("Ctr", "generator_2_switch_up")
wait(2)
for side = 1, 2 do
  local generator, oil = "generator_" .. side, "drive_" .. side .. "_oil_temperature"
  local load = generator .. "_load"
  expect(image("Ctr", generator .. "_lamp") == 0, generator .. " is off its bus")
  expect_near(value("Acload", load), token(load), 1, load)
  expect(value("Gendrive", oil) > 1000, oil .. " is that of a standing drive")
end
press("Ctr", "bus_transfer_switch")
expect(image("Ctr", "bus_transfer_switch") == 0, "the bus transfer switch moves under its guard")
press("Ctr", "bus_transfer_guard")
expect(image("Ctr", "bus_transfer_guard") == 1, "the guard stays closed")
press("Ctr", "bus_transfer_guard")
picture("4-generators", 502)

say("Lights")
open_window(504)
press("Lightspp", "beacon_lights_switch")
expect_event("beacon_lights_toggle")
expect(token("beacon_lights") == 1, "the beacon is off")
expect(image("Ovhmain", "beacon_lights_button") == 1, "the beacon button has not followed")
press("Lightsp", "landing_lights_levers")
expect(image("Ovhmain", "landing_lights_bank") == 1, "the landing lights are off")

say("Night")
open_window(500)
press("Cainstlg", "panel_lights_button")
expect_event("panel_lights_toggle")
expect(window_open(27) and not window_open(20), "the captain's panel keeps its day face")
wheel("Cainstlg", "instrument_lights_knob", 2)
expect(image("Cainstlg", "instrument_lights_knob") == 2, "the instrument lights are not at bright")
expect(image("Acload", "instrument_lighting") == 2, "the load meters stay dark")
wait(1)
picture("5-night")

say("Day again")
wheel("Cainstlg", "instrument_lights_knob", -2)
press("Cainstlg", "panel_lights_button")
expect(window_open(20) and not window_open(27), "the captain's panel keeps its night face")
expect(image("Acload", "instrument_lighting") == 0, "the load meters stay lit")
wait(1)
picture("6-ready")
say("Powered up")
