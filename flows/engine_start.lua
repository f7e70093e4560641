-- From a cold and dark cockpit to both engines running and on their generators: battery, APU, bleed air
-- and start panel on the overhead, fuel levers on the throttle pedestal.

-- The six controls that open the way from the APU to the starters, and the two beside them.
local BLEED_LINEUP = {
  "engine_1_bleed_switch", "engine_2_bleed_switch", "crossfeed_1_switch", "shut_off_valve_1_knob",
  "shut_off_valve_2_knob", "isolation_1_knob", "isolation_2_knob", "manifold_1_knob",
}

-- What the panels show.
local function apu_speed() return value("Apuins", "apu_speed") end
local function apu_running_lamp() return image("Apulg", "apu_running_lamp") end
local function duct_pressure() return value("Grdpsi", "duct_pressure") end
-- 0 dark, 1 green, 2 amber
local function duct_lamp() return image("Bleedair", "duct_pressure_lamp") end
local function ready_light_lit() return image("Engstart", "ready_light") == 0 end

-- What a start needs of each engine: where the selector then stands.
local ENGINES = {{number = 1, selected = 2}, {number = 2, selected = 1}}

local function start(engine)
  local name, id = "engine " .. engine.number, "engine_" .. engine.number
  local function switch() return image("Engstart", id .. "_start_switch") end
  local function core_speed() return token(id .. "_core_speed") end

  say("Start " .. name)
  click("Engstart", id .. "_start_switch")
  expect(switch() == 1, "the start switch of " .. name .. " is not armed")
  click("Engstart", "start_selector_" .. id)
  expect_event("starter_" .. engine.number .. "_engage")
  expect(image("Engstart", "start_selector") == engine.selected, "the selector is not at " .. name)

  wait_until(function() return core_speed() > 20 end, 30, name .. " to turn")
  click("Cutoff", id .. "_fuel_lever")
  expect_event("fuel_lever_" .. engine.number .. "_toggle")
  wait_until(function() return switch() == 2 end, 30, name .. " to release its start switch")
  expect(core_speed() > 25, "the start of " .. name .. " ended early")
  wait_until(function() return core_speed() > 50 end, 60, name .. " to come to idle")
  expect(token(id .. "_gas_temperature") / 4 > 250, name .. " does not burn")
end

say("Cold and dark")
wait(2)
expect(image("Masterbat", "battery_lamp") == 0, "the battery lamp is lit in a dead aircraft")
expect(apu_running_lamp() == 0, "the APU lamp is lit in a dead aircraft")
picture("1-cold-and-dark", 502)

say("Battery")
click("Masterbat", "battery_switch")
wait(0.5)
expect(image("Masterbat", "battery_lamp") == 1, "the battery lamp is dark")
wheel("Acdcsw", "dc_meter_selector", 1)
wait(0.5)
expect(value("Acdc", "dc_ammeter") < 0, "the battery does not supply the aircraft")

say("APU start is refused without air conditioning supply")
click("Apu", "master_switch")
expect_event("apu_master_moved")
wait(0.2)
expect(image("Apu", "armed_light") == 0, "the APU is not armed")
click("Apu", "start_button")
wait(0.2)
expect(image("Apu", "start_button") == 0, "the APU starts without a supply")
expect(#events() == 0, "a refused start tells the host something")

say("APU start")
click("Tempcon", "pack_1_switch")
wait(1)
click("Apu", "start_button")
expect_event("apu_start")
wait(0.5)
expect(sound_level(0.3) > 0.005, "the APU starts in silence")
expect(image("Apu", "start_button") == 1 and apu_running_lamp() == 1, "the APU is not running")
expect(image("Apu", "low_speed_light") == 0, "the low-speed light is dark while the APU runs up")
wait_until(function() return apu_speed() >= 1251 end, 45, "the APU to run up")
expect(image("Apu", "low_speed_light") == 1, "the low-speed light is lit at full speed")
wait(1)
expect_near(apu_speed(), 1251, 0, "the governed speed of the idling APU")
click("Apu", "generator_switch_up")
wait_until(function() return apu_speed() >= 1301 end, 5, "the APU to take its load")
expect(image("Masterbat", "apu_generator_lamp") == 1, "the APU's generator is off")
expect(image("Masterbat", "apu_on_bus_lamp") == 1, "the APU does not feed the buses")
expect_near(value("Acload", "auxiliary_load"), token("auxiliary_load") + 45, 1, "the APU's load")
wheel("Acdcsw", "ac_meter_selector", 1)
wait(0.5)
expect_near(value("Acdc", "ac_frequency_meter"), 20, 0, "the APU's frequency")
expect(value("Apuins", "apu_temperature") > 400, "the APU runs cold")
click("Avimaster", "avionics_master_switch")
wait(0.5)
expect(image("Avimaster", "avionics_lamp") == 1, "the avionics are off")
picture("2-apu-on-line", 502)

say("Bleed air")
for _, control in ipairs(BLEED_LINEUP) do click("Bleedair", control) end
wait(0.5)
expect(duct_lamp() == 0, "there is air before the APU gives any")
click("Apu", "bleed_switch")
wait_until(function() return duct_lamp() == 2 end, 10, "the duct pressure to build up")
wait_until(function() return duct_lamp() == 1 end, 15, "the duct lamp to turn green")
wait_until(function() return duct_pressure() >= 441 end, 20, "the duct pressure to settle")
picture("3-start-air", 502)

say("Start master")
expect(not ready_light_lit(), "the ready light is lit with the master off")
click("Engstart", "start_master_switch")
expect_event("ignition_arm")
wait(0.2)
expect(ready_light_lit(), "the ready light is dark")
open_window(504)
for _, engine in ipairs(ENGINES) do start(engine) end
close_window(504)
wait(0.2)
expect(not ready_light_lit(), "the ready light is lit with both engines running")

say("Generators on, APU off")
click("Ctr", "generator_1_switch_up")
click("Ctr", "generator_2_switch_up")
wait_until(function()
  return token("generator_1_load") > 0 and token("generator_2_load") > 0
end, 30, "the generators to come on line")
for side = 1, 2 do
  local generator = "generator_" .. side
  expect(image("Ctr", generator .. "_lamp") == 0, generator .. " is off its bus")
  expect(value("Acload", generator .. "_load") > 5, generator .. " carries nothing")
end
click("Engstart", "start_master_switch")
click("Engstart", "start_selector_off")
click("Apu", "bleed_switch")
click("Apu", "generator_switch_up")  -- a lever that is up goes back to the centre
click("Apu", "master_switch")
click("Tempcon", "pack_2_switch")
click("Tempcon", "left_automatic_control_switch")
click("Tempcon", "right_automatic_control_switch")
wait(2)
expect(apu_running_lamp() == 0, "the APU still runs")
expect(duct_lamp() == 2, "the engines' own bleed air does not show")
expect_near(value("Ductc", "left_duct_temperature"), 10, 0, "the left duct's temperature")
picture("4-both-running", 502)
say("Both engines running")
