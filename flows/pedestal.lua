-- The throttle pedestal with the engines running: brakes, flaps, throttles, speed brake and lift
-- dumpers, each worked on the panel and seen in the aircraft.

local function brakes() return value("Thleft", "upper_left_brake_pressure") end
local function lever(engine)
  return image(engine == 1 and "Thleft" or "Thright", "throttle_" .. engine .. "_lever")
end
local function dumper_light(side) return image("Liftdump", side .. "_lift_dumper_light") end

-- Drags a throttle from its knob to a height on its gauge.
local function pull(engine, y)
  drag(engine == 1 and "Thleft" or "Thright", "throttle_" .. engine .. "_lever", 120, y)
  wait(0.3)
end

say("Both engines running")
open_window(500)
open_window(501)
open_window(504)
click("Masterbat", "battery_switch")
event("automatic_start")
wait_until(function() return token("engine_2_core_speed") > 50 end, 90, "both engines to come to idle")
wait(3)
for _, dial in ipairs({"Fouti", "Foflt"}) do
  expect_near(value(dial, "hydraulic_pressure") / 3625, 3000, 60, dial .. "'s pressure")
  expect_near(value(dial, "hydraulic_quantity") / 163.84, 85, 5, dial .. "'s quantity")
end

say("Brakes")
expect(brakes() == 160, "the brakes are not released")
right_click("Thleft", "brake_control_switch")
wait(0.5)
expect(brakes() == 120 and image("Thleft", "brake_test_light") == 1, "the brakes are not tested")
wait(3.5)
expect(image("Thleft", "brake_test_light") == 0, "the test does not end")
click("Thleft", "parking_brake_lever")
expect_event("parking_brake_toggle")
wait(0.5)
expect(brakes() == 220 and image("Ttc", "parking_brake_light") == 1, "the parking brake does not hold")
picture("1-parked", 504, 2)

say("Flaps")
for _ = 1, 2 do click("Thright", "flap_lever_down") end
wait(5)
expect(image("Thright", "flap_lever") == 2, "the flaps are not at 11")
picture("2-flaps", 504)

say("Lift dumpers")
expect(dumper_light("left") == 1, "the lights are not off")
click("Ldmain", "lift_dump_arm_switch")
wait(1.2)
expect(token("left_lift_dumper") == 16384, "the dumpers are in")
expect(dumper_light("left") == 3 and dumper_light("right") == 3, "the lights do not show it")
click("Ldmain", "lift_dump_arm_switch")
click("Ldmain", "lift_dump_deployment_switch")
wait(1.2)
expect(token("right_lift_dumper") == 0 and dumper_light("right") == 1, "the dumpers are out")

say("Speed brake")
click("Thleft", "speed_brake_switch")
wait(0.5)
expect(value("Sbrake", "speed_brake_position") == 60, "the dial does not see the speed brake")
expect(image("Sbrakelg", "speed_brake_light") == 1, "the light does not see it")

say("Throttles")
pull(1, 180)
pull(2, 100)
expect(lever(1) == 5 and lever(2) == 4, "the levers are not where the hand left them")
picture("3-part-power", 504)
pull(1, 100)
expect(image("Sbrakelg", "speed_brake_light") == 0, "the speed brake stays out at take-off thrust")
expect(token("speed_brake") == 0, "nobody told the aircraft")
pull(1, 320)
pull(2, 200)
expect(lever(1) == 0 and token("throttle_2") == 0, "the throttles do not close")
say("Done")
