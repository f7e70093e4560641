#include "resources/plain_plates.h"

namespace artwork {
namespace {

/// Where several gauges share a plate, one of them stands for all.
constexpr PlainPlate table[] = {
    {"Msnd", 20},         {"Vhf1nav", 110}, {"Vhf2nav", 110},  {"Comm", 92},       {"Adf", 78},
    {"Transponder", 106}, {"Selcall", 112}, {"Dhgpws", 93},    {"Flightrec", 119}, {"Micsel", 166},
    {"Trim", 84},         {"Thleft", 292},  {"Ldmain", 58},    {"Ttc", 70},        {"Thright", 236},
    {"Liftdump", 46},     {"Wiskey", 46},   {"Nav1rad", 102},  {"Stall", 34},      {"Sbrake", 144},
    {"Sbrakelg", 22},     {"Stabind", 90},  {"Pullup", 52},    {"Gear", 210},      {"Flapind", 72},
    {"Fowarn", 144},      {"Fobrake", 74},  {"Fouti", 72},     {"Foflt", 72},      {"Gearind", 84},
    {"Masterwarn", 32},   {"Gustlock", 22}, {"Pushback", 178},
};

}  // namespace

std::span<const PlainPlate> plain_plates() { return table; }

}  // namespace artwork
