-- From a cold and dark cockpit to both generators on line and the night lighting, and back to day.

-- Controls: a gauge and a pixel of its background.
local BATTERY = {"Masterbat", 47, 99}
local EXTERNAL_POWER = {"Masterbat", 117, 93}
local AVIONICS = {"Avimaster", 57, 39}
local EMERGENCY_LIGHTS = {"Emerlight", 18, 29}
local DC_SELECTOR = {"Acdcsw", 40, 35}
local AC_SELECTOR = {"Acdcsw", 134, 35}
local GENERATOR_1 = {"Ctr", 68, 30}
local GENERATOR_2 = {"Ctr", 110, 30}
local BUS_TRANSFER = {"Ctr", 91, 118}
local BUS_TRANSFER_GUARD = {"Ctr", 91, 85}
local AC_TEST = {"Acpwr", 25, 134}
local BEACON = {"Lightspp", 93, 31}
local LANDING_LIGHTS = {"Lightsp", 40, 23}
local PANEL_LIGHTS = {"Cainstlg", 27, 83}
local INSTRUMENT_LIGHTS = {"Cainstlg", 71, 34}

-- What the panels show.
local function battery_lamp() return image("Masterbat", 40) end
local function avionics_lamp() return image("Avimaster", 2330) end
local function bus_lamp(side) return image("Ctr", 2120, side) end
local function bus_indicator() return image("Acpwr", 2110, 2) end -- image 0 is the lit one
local function dc_amperes() return value("Acdc", 350, 1) end
local function dc_volts() return value("Acdc", 350, 2) end
local function ac_volts() return value("Acdc", 350, 3) end
local function ac_frequency() return value("Acdc", 350, 4) end

-- Presses a switch and listens: the click must come with the press and stand out of the silence.
local function press(control, what)
  wait(1)
  expect(sound_level(0.4) < 0.001, "there is a noise before " .. what)
  click(control)
  wait(0.1)
  expect(sound_level(0.2) > 0.005, what .. " makes no click")
end

say("Cold and dark")
wait(2)
expect(battery_lamp() == 0, "the battery lamp is lit in a dead aircraft")
expect(avionics_lamp() == 0, "the avionics lamp is lit in a dead aircraft")
expect_near(dc_volts(), 0, 0, "the DC voltmeter in a dead aircraft")
picture("1-cold-and-dark")

say("Battery on")
press(BATTERY, "the battery switch")
expect_event("battery_toggle")
expect(#events() == 5, "the battery switch moves the alternators' lines with it")
expect(token("battery") == 1, "the battery has not followed its switch")
expect(battery_lamp() == 1, "the battery lamp is dark")

say("Battery meters")
wheel(DC_SELECTOR, 1)
expect(image("Acdcsw", 380, 1) == 1, "the DC selector is not at the battery")
wait(1)
expect_near(dc_amperes(), token("dc_amperes"), 1, "the battery current")
expect(dc_amperes() < -5, "the battery does not supply the aircraft")
expect_near(dc_volts(), token("dc_voltmeter") + 5, 1, "the battery voltage")
picture("2-battery", 502)

say("Avionics on")
press(AVIONICS, "the avionics master")
expect_event("avionics_toggle")
expect(avionics_lamp() == 1, "the avionics lamp is dark")
wait(1)
expect(dc_amperes() < -20, "the avionics draw nothing from the battery")

say("Indicator test and emergency lights")
expect(bus_indicator() == 1, "the AC power indicator is lit without a test")
click(AC_TEST)
expect(bus_indicator() == 0, "the test does not light the indicator")
wait_until(function() return bus_indicator() == 1 end, 4, "the end of the indicator test")
expect(image("Emerlight", 1250) == 0, "the emergency lights are armed already")
press(EMERGENCY_LIGHTS, "the emergency light switch")
expect(image("Emerlight", 1250) == 1, "the emergency lights are not armed")

say("Ground power")
event("external_power_connect")
press(EXTERNAL_POWER, "the external power switch")
expect(image("Masterbat", 2130, 2) == 1, "the external power switch is not up")
wait(1)
expect(dc_amperes() > 5, "ground power does not charge the battery")
wheel(DC_SELECTOR, 3)
wait(0.5)
expect_near(dc_volts(), token("dc_voltmeter") - 18, 1, "the external voltage")
wheel(AC_SELECTOR, 2)
wait(0.5)
expect_near(ac_volts(), token("ac_bus_1_voltmeter") + 92, 1, "the voltage of AC bus 1")
wheel(AC_SELECTOR, 5)
wait(0.5)
expect_near(ac_volts(), 270, 0, "the external AC voltage")
expect_near(ac_frequency(), 18, 0, "the external AC frequency")
wheel(AC_SELECTOR, -5)
picture("3-meters", "Acdc", 3)

say("Both engines start")
event("automatic_start")
wait_until(function()
  return token("generator_1_load") > 0 and token("generator_2_load") > 0
end, 180, "both generators to come on line")

say("Generators on")
expect_near(value("Acload", 410, 1), 0, 0, "the load meter of a generator that is off")
press(GENERATOR_1, "the left generator switch")
press(GENERATOR_2, "the right generator switch")
wait(2)
for side = 1, 2 do
  expect(bus_lamp(side) == 0, "generator " .. side .. " is off its bus")
  expect_near(value("Acload", 410, side), token(side == 1 and 762 or 764), 1, "load meter " .. side)
  expect(value("Gendrive", 440, side) > 1000, "drive meter " .. side .. " shows a standing drive")
end
press(BUS_TRANSFER, "the guarded switch")
expect(image("Ctr", 2170) == 0, "the bus transfer switch moves under its guard")
press(BUS_TRANSFER_GUARD, "the guard")
expect(image("Ctr", 2180) == 1, "the guard stays closed")
press(BUS_TRANSFER_GUARD, "the guard")
picture("4-generators", 502)

say("Lights")
press(BEACON, "the beacon switch")
expect_event("beacon_lights_toggle")
expect(token("beacon_lights") == 1 and image("Ovhmain", 13230, 3) == 1, "the beacon is off")
press(LANDING_LIGHTS, "the landing light switch")
expect(image("Ovhmain", 13220) == 1, "the landing lights are off")

say("Night")
open_window(500)
press(PANEL_LIGHTS, "the panel light switch")
expect_event("panel_lights_toggle")
expect(window_open(27) and not window_open(20), "the captain's panel keeps its day face")
wheel(INSTRUMENT_LIGHTS, 2)
expect(image("Cainstlg", 13290) == 2, "the instrument lights are not at bright")
expect(image("Acload", 420) == 2, "the load meters stay dark")
wait(1)
picture("5-night")

say("Day again")
wheel(INSTRUMENT_LIGHTS, -2)
press(PANEL_LIGHTS, "the panel light switch")
expect(window_open(20) and not window_open(27), "the captain's panel keeps its night face")
expect(image("Acload", 420) == 0, "the load meters stay lit")
wait(1)
picture("6-ready")
say("Powered up")
