#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

// ---- Tokens. The heads print the leading 1 of a frequency themselves and have no drum for the last
// figure of a 25 kHz channel: 118.025 MHz reads 1802.

double shown(int khz) { return bcd(static_cast<std::uint32_t>(khz - 100000) / 10); }

template <std::size_t receiver>
double nav_active(const Aircraft& aircraft) {
  return shown(aircraft.nav[receiver].tuning.active_khz);
}

template <std::size_t receiver>
double nav_standby(const Aircraft& aircraft) {
  return shown(aircraft.nav[receiver].tuning.standby_khz);
}

double adf_frequency(const Aircraft& aircraft) {
  return bcd(static_cast<std::uint32_t>(aircraft.adf.tuning.tenths_khz) / 10 % 1000);
}

double adf_frequency_ends(const Aircraft& aircraft) {
  const auto tenths = static_cast<std::uint32_t>(aircraft.adf.tuning.tenths_khz);
  return tenths / 10000 << 8 | tenths % 10;
}

double transponder_code(const Aircraft& aircraft) {
  std::uint32_t code = 0;
  for (const int figure : aircraft.transponder.figures)
    code = code << 4 | static_cast<unsigned>(figure);
  return code;
}

constexpr std::string_view vhf_unit = "BCD, 1/100 MHz above 100 MHz";

constexpr TokenRow tokens[] = {
    {{16, "adf_frequency", "BCD, hundreds to units of kHz"}, adf_frequency},
    {{18, "adf_frequency_ends", "BCD, thousands of kHz in bits 8-11, tenths in bits 0-3"},
     adf_frequency_ends},
    {{23, "com1_active", vhf_unit}, [](const Aircraft& a) { return shown(a.com.active_khz); }},
    {{24, "nav1_active", vhf_unit}, nav_active<0>},
    {{27, "nav2_active", vhf_unit}, nav_active<1>},
    {{38, "transponder_code", "BCD, figures 0..7"}, transponder_code},
    {{617, "com1_standby", vhf_unit}, [](const Aircraft& a) { return shown(a.com.standby_khz); }},
    {{872, "nav1_standby", vhf_unit}, nav_standby<0>},
    {{873, "nav2_standby", vhf_unit}, nav_standby<1>},
};

// ---- Events. The code knobs tell how often they have been turned; each click is one figure on.

VhfTuning& com(Aircraft& aircraft) { return aircraft.com; }

template <std::size_t receiver>
VhfTuning& nav(Aircraft& aircraft) {
  return aircraft.nav[receiver].tuning;
}

template <auto radio, int steps>
void turn_megahertz(Aircraft& aircraft, std::uint32_t) {
  radio(aircraft).turn_megahertz(steps);
}

template <auto radio, int steps>
void turn_kilohertz(Aircraft& aircraft, std::uint32_t) {
  radio(aircraft).turn_kilohertz(steps);
}

template <auto radio>
void exchange(Aircraft& aircraft, std::uint32_t) {
  radio(aircraft).exchange();
}

template <AdfFigure figure>
void turn_adf(Aircraft& aircraft, std::uint32_t) {
  aircraft.adf.tuning.turn_up(figure);
}

template <std::size_t figure>
void turn_code(Aircraft& aircraft, std::uint32_t) {
  aircraft.transponder.turn_up(figure);
}

template <int transmitter>
void transmit(Aircraft& aircraft, std::uint32_t) {
  aircraft.audio.transmitter = transmitter;
}

template <std::size_t receiver, bool on>
void listen(Aircraft& aircraft, std::uint32_t) {
  aircraft.audio.identification_on[receiver] = on;
}

constexpr EventRow events[] = {
    {{0x10064, "com1_megahertz_down", ""}, turn_megahertz<com, -1>},
    {{0x10065, "com1_megahertz_up", ""}, turn_megahertz<com, 1>},
    {{0x10066, "com1_kilohertz_down", ""}, turn_kilohertz<com, -1>},
    {{0x10067, "com1_kilohertz_up", ""}, turn_kilohertz<com, 1>},
    {{0x10344, "com1_exchange", ""}, exchange<com>},
    {{0x10068, "nav1_megahertz_down", ""}, turn_megahertz<nav<0>, -1>},
    {{0x10069, "nav1_megahertz_up", ""}, turn_megahertz<nav<0>, 1>},
    {{0x1006A, "nav1_kilohertz_down", ""}, turn_kilohertz<nav<0>, -1>},
    {{0x1006B, "nav1_kilohertz_up", ""}, turn_kilohertz<nav<0>, 1>},
    {{0x10390, "nav1_exchange", ""}, exchange<nav<0>>},
    {{0x1006C, "nav2_megahertz_down", ""}, turn_megahertz<nav<1>, -1>},
    {{0x1006D, "nav2_megahertz_up", ""}, turn_megahertz<nav<1>, 1>},
    {{0x1006E, "nav2_kilohertz_down", ""}, turn_kilohertz<nav<1>, -1>},
    {{0x1006F, "nav2_kilohertz_up", ""}, turn_kilohertz<nav<1>, 1>},
    {{0x10394, "nav2_exchange", ""}, exchange<nav<1>>},
    {{0x10070, "adf_hundreds_up", ""}, turn_adf<AdfFigure::hundreds>},
    {{0x10071, "adf_tens_up", ""}, turn_adf<AdfFigure::tens>},
    {{0x10072, "adf_units_up", ""}, turn_adf<AdfFigure::units>},
    {{0x10396, "adf_tenths_up", ""}, turn_adf<AdfFigure::tenths>},
    {{0x10073, "transponder_thousands_up", "clicks so far"}, turn_code<0>},
    {{0x10074, "transponder_hundreds_up", "clicks so far"}, turn_code<1>},
    {{0x10075, "transponder_tens_up", "clicks so far"}, turn_code<2>},
    {{0x10076, "transponder_units_up", "clicks so far"}, turn_code<3>},
    {{0x1039F, "transmit_on_com1", ""}, transmit<1>},
    {{0x103A0, "transmit_on_com2", ""}, transmit<2>},
    {{0x103A1, "receive_all_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.audio.receive_all = !a.audio.receive_all; }},
    {{0x1012D, "nav1_identification_on", ""}, listen<0, true>},
    {{0x10128, "nav1_identification_off", ""}, listen<0, false>},
    {{0x1012E, "nav2_identification_on", ""}, listen<1, true>},
    {{0x10129, "nav2_identification_off", ""}, listen<1, false>},
    {{0x10131, "adf_identification_on", ""}, listen<2, true>},
    {{0x1012C, "adf_identification_off", ""}, listen<2, false>},
};

}  // namespace

constinit const SystemRows radios_rows{tokens, events};

}  // namespace host::simulation
