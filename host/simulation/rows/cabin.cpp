#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr TokenRow tokens[] = {
    {{988, "left_cabin_sign", "0/1"}, [](const Aircraft& a) { return on_off(a.cabin.left_sign); }},
    {{989, "right_cabin_sign", "0/1"}, [](const Aircraft& a) { return on_off(a.cabin.right_sign); }},
};

constexpr EventRow events[] = {
    {{0x1049E, "left_cabin_sign_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.cabin.left_sign = !a.cabin.left_sign; }},
    {{0x1049F, "right_cabin_sign_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.cabin.right_sign = !a.cabin.right_sign; }},
};

}  // namespace

constinit const SystemRows cabin_rows{tokens, events};

}  // namespace host::simulation
