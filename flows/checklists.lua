-- Every list of the kneeboard, from before start to shut down. What an item points at is clicked once,
-- and the kneeboard has to tick it; what more it takes is said below. In the air the aircraft is put
-- where the lists for the air belong.

-- Items that a click alone does not finish: more work, or the time that they take.
local MORE = {
  APU = 2, ["APU speed"] = 45, ["Duct pressure"] = 60, ["Start selector"] = 20, ["Engine 1"] = 60,
  ["Engine 2"] = 60, Gear = 30, Flaps = 30, ["Both engines"] = 60, ["Speed brake"] = 10,
  ["Generator 1"] = 2, ["Generator 2"] = 2,
}

-- Selectors and levers that take several clicks, and the seconds after each.
local SEVERAL = {Flaps = 18, Course = 0, ["Emergency lights"] = 0}

-- An engine takes fuel when it turns.
local BEFORE = {
  ["Fuel lever 1"] = function() return token("engine_1_core_speed") > 20 or token("fuel_lever_1") == 1 end,
  ["Fuel lever 2"] = function() return token("engine_2_core_speed") > 20 or token("fuel_lever_2") == 1 end,
}

local function item(list, number) return checklist(list)[number] end
local function done(list, number) return item(list, number).done == 1 end

local function work(list, number)
  local this = item(list, number)
  local name = list .. ", " .. this.what
  if not window_open(this.window) then open_window(this.window) end
  wait(0.2)
  if BEFORE[this.what] then wait_until(BEFORE[this.what], 30, name .. " to be due") end
  local clicks = 0
  while this.control ~= "" and not done(list, number) and clicks < 6 do
    click(this.gauge, this.control)
    clicks = clicks + 1
    wait(0.3)
    if not SEVERAL[this.what] then break end
    wait(SEVERAL[this.what])
  end
  local seconds = MORE[this.what]
  if seconds and not done(list, number) then
    wait_until(function() return done(list, number) end, seconds, name .. " to be " .. this.wanted)
  end
  expect(done(list, number), name .. " is not " .. this.wanted .. " after its control has been worked")
end

local function by_the_list(list)
  say(list)
  for number = 1, #checklist(list) do work(list, number) end
end

local function expect_all(list)
  for _, each in ipairs(checklist(list)) do
    expect(each.done == 1, list .. ", " .. each.what .. " is undone again")
  end
end

by_the_list("Before start")
expect_all("Before start")
expect(radio("push_back"):find("push back approved", 1, true), "ground refuses to push back")
picture("1-before-start", "kneeboard")

by_the_list("Engine start")
by_the_list("After start")
expect_all("After start")
picture("2-after-start")
expect(radio("taxi"):find("holding point runway 07", 1, true), "ground refuses to taxi")
by_the_list("Taxi")
place_on_runway()
by_the_list("Before take-off")
expect_all("Before take-off")
expect(radio("take_off"):find("contact Tarnvale Tower on 118.100", 1, true), "ground clears a take-off")
click("Comm", "transfer_button")
wait(0.2)
expect(radio("take_off"):find("cleared for take-off", 1, true), "the tower does not clear the take-off")
picture("3-radio", "atc")

say("In the air")
place_in_flight{altitude = 3000, airspeed = 180, along = 5000, flaps = 11, gear = "down"}
by_the_list("Climb")
expect_all("Climb")
place_in_flight{altitude = 1900, airspeed = 150, along = -12000, flaps = 11}
wait(20)
by_the_list("Approach")
expect(radio("landing"):find("cleared to land", 1, true), "the tower does not clear the landing")
picture("4-approach", "map")
picture("5-approach", "gps")
place_in_flight{altitude = 1700, airspeed = 140, along = -9000, flaps = 25}
by_the_list("Landing")
expect_all("Landing")

say("Down again")
place_on_runway()
by_the_list("Shut down")
expect_all("Shut down")
picture("6-shut-down", "kneeboard")
say("All lists complete")
