-- From a cold and dark cockpit to both engines running and on their generators, through the overhead
-- panel alone: battery, APU, bleed air, start panel. Only the fuel levers, which stand on the pedestal,
-- are moved by their events.

-- Controls: a gauge and a pixel of its background.
local BATTERY = {"Masterbat", 47, 99}
local AVIONICS = {"Avimaster", 57, 39}
local DC_SELECTOR = {"Acdcsw", 40, 35}
local AC_SELECTOR = {"Acdcsw", 134, 35}
local LEFT_SUPPLY = {"Tempcon", 68, 58}
local RIGHT_SUPPLY = {"Tempcon", 114, 58}
local LEFT_AUTO = {"Tempcon", 36, 176}
local RIGHT_AUTO = {"Tempcon", 146, 176}
local APU_MASTER = {"Apu", 109, 48}
local APU_START = {"Apu", 110, 88}
local APU_BLEED = {"Apu", 156, 48}
local APU_GENERATOR_UP = {"Apu", 15, 30}
local START_MASTER = {"Engstart", 72, 20}
local GENERATOR_1 = {"Ctr", 68, 30}
local GENERATOR_2 = {"Ctr", 110, 30}

-- The six controls that open the way from the APU to the starters, and the two beside them.
local BLEED_LINEUP = {
  {"Bleedair", 87, 42}, {"Bleedair", 131, 42},  -- upper switches
  {"Bleedair", 84, 98},                         -- lower left switch
  {"Bleedair", 51, 22}, {"Bleedair", 169, 24},  -- top knobs
  {"Bleedair", 49, 110}, {"Bleedair", 162, 109}, -- middle knobs
  {"Bleedair", 76, 142},                        -- bottom left knob
}

-- What a start needs of each engine.
local ENGINES = {
  {
    number = 1,
    selector = {"Engstart", 61, 66}, selected = 2, start_event = "starter_1_engage",
    start_switch = {"Engstart", 120, 20}, switch_image = 2,
    core_speed = "engine_1_core_speed", gas_temperature = "engine_1_gas_temperature", fuel_lever = "fuel_lever_1_toggle",
  },
  {
    number = 2,
    selector = {"Engstart", 133, 66}, selected = 1, start_event = "starter_2_engage",
    start_switch = {"Engstart", 163, 20}, switch_image = 1,
    core_speed = "engine_2_core_speed", gas_temperature = "engine_2_gas_temperature", fuel_lever = "fuel_lever_2_toggle",
  },
}

-- What the panels show.
local function apu_speed() return value("Apuins", 470, 1) end
local function apu_temperature() return value("Apuins", 470, 2) end
local function duct_pressure() return value("Grdpsi", 1070) end
local function duct_light() return image("Bleedair", 150) end        -- 0 dark, 1 green, 2 amber
local function start_light_lit() return image("Engstart", 2110) == 0 end
local function start_switch(engine) return image("Engstart", 2040, engine.switch_image) end

local function start(engine)
  local name = "engine " .. engine.number
  say("Start " .. name)
  click(engine.start_switch)
  expect(start_switch(engine) == 1, "the start switch of " .. name .. " is not armed")
  click(engine.selector)
  expect_event(engine.start_event)
  expect(image("Engstart", 260) == engine.selected, "the selector is not at " .. name)

  wait_until(function() return token(engine.core_speed) > 20 end, 30, name .. " to turn")
  event(engine.fuel_lever)
  wait_until(function() return start_switch(engine) == 2 end, 30, name .. " to release its start switch")
  expect(token(engine.core_speed) > 25, "the start of " .. name .. " ended early")
  wait_until(function() return token(engine.core_speed) > 50 end, 60, name .. " to come to idle")
  expect(token(engine.gas_temperature) / 4 > 250, name .. " does not burn")
end

say("Cold and dark")
wait(2)
expect(image("Masterbat", 40) == 0, "the battery lamp is lit in a dead aircraft")
expect(image("Apulg", 13370) == 0, "the APU light is lit in a dead aircraft")
picture("1-cold-and-dark", 502)

say("Battery")
click(BATTERY)
wait(0.5)
expect(image("Masterbat", 40) == 1, "the battery lamp is dark")
wheel(DC_SELECTOR, 1)
wait(0.5)
expect(value("Acdc", 350, 1) < 0, "the battery does not supply the aircraft")

say("APU start is refused without air conditioning supply")
click(APU_MASTER)
expect_event("apu_master_moved")
wait(0.2)
expect(image("Apu", 2110, 3) == 0, "the APU is not armed")
click(APU_START)
wait(0.2)
expect(image("Apu", 2070) == 0, "the APU starts without a supply")
expect(#events() == 0, "a refused start tells the host something")

say("APU start")
click(LEFT_SUPPLY)
wait(1)
click(APU_START)
expect_event("apu_start")
wait(0.5)
expect(sound_level(0.3) > 0.005, "the APU starts in silence")
expect(image("Apu", 2070) == 1 and image("Apulg", 13370) == 1, "the APU is not running")
expect(image("Apu", 2110, 2) == 0, "the low-speed light is dark while the APU runs up")
wait_until(function() return apu_speed() >= 1251 end, 45, "the APU to run up")
expect(image("Apu", 2110, 2) == 1, "the low-speed light is lit at full speed")
wait(1)
expect_near(apu_speed(), 1251, 0, "the governed speed of the idling APU")
click(APU_GENERATOR_UP)
wait_until(function() return apu_speed() >= 1301 end, 5, "the APU to take its load")
expect(image("Masterbat", 50) == 1 and image("Masterbat", 60) == 1, "the APU does not feed the buses")
expect_near(value("Acload", 410, 3), token("auxiliary_load") + 45, 1, "the APU's load")
wheel(AC_SELECTOR, 1)
wait(0.5)
expect_near(value("Acdc", 350, 4), 20, 0, "the APU's frequency")
expect(apu_temperature() > 400, "the APU runs cold")
click(AVIONICS)
wait(0.5)
expect(image("Avimaster", 2330) == 1, "the avionics are off")
picture("2-apu-on-line", 502)

say("Bleed air")
for _, control in ipairs(BLEED_LINEUP) do click(control) end
wait(0.5)
expect(duct_light() == 0, "there is air before the APU gives any")
click(APU_BLEED)
wait_until(function() return duct_light() == 2 end, 10, "the duct pressure to build up")
wait_until(function() return duct_light() == 1 end, 15, "the duct light to turn green")
wait_until(function() return duct_pressure() >= 441 end, 20, "the duct pressure to settle")
picture("3-start-air", 502)

say("Start master")
expect(not start_light_lit(), "the start light is lit with the master off")
click(START_MASTER)
expect_event("ignition_arm")
wait(0.2)
expect(start_light_lit(), "the start light is dark")
for _, engine in ipairs(ENGINES) do start(engine) end
wait(0.2)
expect(not start_light_lit(), "the start light is lit with both engines running")

say("Generators on, APU off")
click(GENERATOR_1)
click(GENERATOR_2)
wait_until(function()
  return token("generator_1_load") > 0 and token("generator_2_load") > 0
end, 30, "the generators to come on line")
for side = 1, 2 do
  expect(image("Ctr", 2120, side) == 0, "generator " .. side .. " is off its bus")
  expect(value("Acload", 410, side) > 5, "generator " .. side .. " carries nothing")
end
click(START_MASTER)
click({"Engstart", 97, 66})  -- the selector back to the centre
click(APU_BLEED)
click(APU_GENERATOR_UP)  -- a lever that is up goes back to the centre
click(APU_MASTER)
click(RIGHT_SUPPLY)
click(LEFT_AUTO)
click(RIGHT_AUTO)
wait(2)
expect(image("Apulg", 13370) == 0, "the APU still runs")
expect(duct_light() == 2, "the engines' own bleed air does not show")
expect(value("Ductc", 280, 1) == 10, "the left duct is not at its selector's temperature")
picture("4-both-running", 502)
say("Both engines running")
