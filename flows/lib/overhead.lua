-- The crew at the overhead and the fuel levers: from the battery to both engines running, and back to a
-- dark cockpit. Each step waits for what the panels show and fails where they do not. The overhead
-- (window 502) must be open.
local overhead = {}

-- The six controls that open the way from the APU to the starters, and the two beside them.
local BLEED_LINEUP = {
  "engine_1_bleed_switch", "engine_2_bleed_switch", "crossfeed_1_switch", "shut_off_valve_1_knob",
  "shut_off_valve_2_knob", "isolation_1_knob", "isolation_2_knob", "manifold_1_knob",
}

-- What a start needs of each engine: where the selector then stands.
local ENGINES = {{number = 1, selected = 2}, {number = 2, selected = 1}}

-- ---- What the panels show

function overhead.apu_speed() return value("Apuins", "apu_speed") end
function overhead.apu_running_lamp() return image("Apulg", "apu_running_lamp") end
-- 0 dark, 1 green, 2 amber
function overhead.duct_lamp() return image("Bleedair", "duct_pressure_lamp") end

local function ready_light_lit() return image("Engstart", "ready_light") == 0 end

-- ---- Power

-- No lamp is lit in an aircraft without current.
function overhead.expect_dead()
  expect(image("Masterbat", "battery_lamp") == 0, "the battery lamp is lit in a dead aircraft")
  expect(overhead.apu_running_lamp() == 0, "the APU lamp is lit in a dead aircraft")
end

function overhead.switch_battery_on()
  click("Masterbat", "battery_switch")
  wait(0.5)
  expect(image("Masterbat", "battery_lamp") == 1, "the battery lamp is dark")
  wheel("Acdcsw", "dc_meter_selector", 1)
  wait(0.5)
  expect(value("Acdc", "dc_ammeter") < 0, "the battery does not supply the aircraft")
end

-- With its master on and a pack that asks for air.
function overhead.start_apu()
  click("Apu", "start_button")
  expect_event("apu_start")
  wait(0.5)
  expect((sound_level(0.3) or 1) > 0.005, "the APU starts in silence")
  expect(image("Apu", "start_button") == 1 and overhead.apu_running_lamp() == 1,
         "the APU is not running")
  expect(image("Apu", "low_speed_light") == 0, "the low-speed light is dark while the APU runs up")
  wait_until(function() return overhead.apu_speed() >= 1251 end, 45, "the APU to run up")
  expect(image("Apu", "low_speed_light") == 1, "the low-speed light is lit at full speed")
end

function overhead.put_apu_on_line()
  click("Apu", "generator_switch_up")
  wait_until(function() return overhead.apu_speed() >= 1301 end, 5, "the APU to take its load")
  expect(image("Masterbat", "apu_generator_lamp") == 1, "the APU's generator is off")
  expect(image("Masterbat", "apu_on_bus_lamp") == 1, "the APU does not feed the buses")
  click("Avimaster", "avionics_master_switch")
  wait(0.5)
  expect(image("Avimaster", "avionics_lamp") == 1, "the avionics are off")
end

-- ---- Engines

function overhead.line_up_bleed_air()
  for _, control in ipairs(BLEED_LINEUP) do click("Bleedair", control) end
  wait(0.5)
  expect(overhead.duct_lamp() == 0, "there is air before the APU gives any")
  click("Apu", "bleed_switch")
  wait_until(function() return overhead.duct_lamp() == 2 end, 10, "the duct pressure to build up")
  wait_until(function() return overhead.duct_lamp() == 1 end, 15, "the duct lamp to turn green")
  wait_until(function() return value("Grdpsi", "duct_pressure") >= 441 end, 20,
             "the duct pressure to settle")
end

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

function overhead.start_engines()
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
end

function overhead.put_generators_on_line()
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
end

-- After the start the engines give current and air.
function overhead.switch_apu_off()
  click("Engstart", "start_master_switch")
  click("Engstart", "start_selector_off")
  click("Apu", "bleed_switch")
  click("Apu", "generator_switch_up")  -- a lever that is up goes back to the centre
  click("Apu", "master_switch")
  click("Tempcon", "pack_2_switch")
  click("Tempcon", "left_automatic_control_switch")
  click("Tempcon", "right_automatic_control_switch")
  wait(2)
  expect(overhead.apu_running_lamp() == 0, "the APU still runs")
end

-- ---- Back to dark

function overhead.shut_down_engines()
  open_window(504)
  for engine = 1, 2 do click("Cutoff", "engine_" .. engine .. "_fuel_lever") end
  wait_until(function()
    return token("engine_1_core_speed") < 10 and token("engine_2_core_speed") < 10
  end, 120, "both engines to run down")
  close_window(504)
  click("Ctr", "generator_1_switch_up")
  click("Ctr", "generator_2_switch_up")
end

function overhead.switch_power_off()
  click("Avimaster", "avionics_master_switch")
  click("Masterbat", "battery_switch")
  wait(1)
  expect(image("Masterbat", "battery_lamp") == 0 and image("Avimaster", "avionics_lamp") == 0,
         "the cockpit is not dark")
end

return overhead
