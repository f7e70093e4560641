/// VHF communication radio (pedestal).
#include "gauges/radios/frequency_head.h"

namespace tarnvale {
namespace {

constexpr FrequencyHead head{
    .radio = {.system = &failure::avionics,
              .active = token::com1_active,
              .standby = token::com1_standby,
              .exchange = event::com1_exchange,
              .megahertz_down = event::com1_megahertz_down,
              .megahertz_up = event::com1_megahertz_up,
              .kilohertz_down = event::com1_kilohertz_down,
              .kilohertz_up = event::com1_kilohertz_up},
    .active = {25, 19},
    .standby = {140, 19},
    .transfer_light = {87, 62},
    .transfer_button = {85, 59, 46, 20},
    .megahertz_down = {11, 48, 24, 32},
    .megahertz_up = {37, 48, 24, 32},
    .kilohertz_down = {151, 48, 24, 32},
    .kilohertz_up = {177, 48, 24, 32},
};

constinit HoldClock timer;
constinit u32 transfer_lit;

constinit Body body{
    comm,
    frequency_rows<head, &timer, &transfer_lit>(),
    frequency_areas<head, &timer, &transfer_lit>(),
};

}  // namespace

constinit Gauge comm{{.name = "Comm", .width_mm = 212, .background = 2340}, body};

}  // namespace tarnvale
