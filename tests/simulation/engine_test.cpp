#include "host/simulation/systems/engine.h"

#include <gtest/gtest.h>

namespace host::simulation {
namespace {

constexpr double dt_s = 1.0 / 60.0;

void run(Engine& engine, const EngineInputs& inputs, double seconds) {
  for (double t_s = 0.0; t_s < seconds; t_s += dt_s) engine.update(dt_s, inputs);
}

Engine at_idle() {
  Engine engine;
  run(engine, {.fuel_lever_open = true, .ignition = true, .crank_speed_percent = 28.0}, 60.0);
  run(engine, {.fuel_lever_open = true}, 60.0);
  return engine;
}

TEST(Engine, Take_off_and_back_to_idle) {
  Engine engine = at_idle();
  run(engine, {.fuel_lever_open = true, .throttle_ratio = 1.0}, 5.0);
  EXPECT_GT(engine.core_speed_percent, 70.0);
  EXPECT_LT(engine.core_speed_percent, 90.0) << "no jet spools up in five seconds";
  run(engine, {.fuel_lever_open = true, .throttle_ratio = 1.0}, 25.0);
  EXPECT_NEAR(engine.core_speed_percent, 96.0, 0.5);
  EXPECT_NEAR(engine.fan_speed_percent, 96.0, 1.0);
  EXPECT_NEAR(engine.pressure_ratio, 1.38, 0.01);
  EXPECT_NEAR(engine.gas_temperature_celsius, 700.0, 10.0);
  EXPECT_NEAR(engine.fuel_flow_kg_per_h, 2500.0, 50.0);
  run(engine, {.fuel_lever_open = true}, 30.0);
  EXPECT_NEAR(engine.core_speed_percent, 52.0, 0.5);
}

TEST(Engine, A_hot_day_heats_it_and_thin_air_feeds_it_less) {
  const Engine idle = at_idle();
  Engine hot = idle, high = idle;
  run(hot, {.fuel_lever_open = true, .air_temperature_celsius = 35.0}, 60.0);
  EXPECT_NEAR(hot.gas_temperature_celsius - idle.gas_temperature_celsius, 20.0, 8.0);
  run(high, {.fuel_lever_open = true, .air_pressure_hpa = 500.0}, 60.0);
  EXPECT_NEAR(high.fuel_flow_kg_per_h, idle.fuel_flow_kg_per_h / 2.0, 15.0);
}

}  // namespace
}  // namespace host::simulation
