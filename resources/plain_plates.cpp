#include "resources/plain_plates.h"

namespace artwork {
namespace {

/// Where several gauges share a plate, one of them stands for all.
constexpr PlainPlate table[] = {
    {"Msnd", 20},     {"Trim", 84},     {"Thleft", 292},   {"Ldmain", 58},   {"Ttc", 70},
    {"Thright", 236}, {"Liftdump", 46}, {"Sbrake", 144},   {"Sbrakelg", 22}, {"Stabind", 90},
    {"Gear", 210},    {"Flapind", 72},  {"Fobrake", 74},   {"Fouti", 72},    {"Foflt", 72},
    {"Gearind", 84},  {"Gustlock", 22}, {"Pushback", 178},
};

}  // namespace

std::span<const PlainPlate> plain_plates() { return table; }

}  // namespace artwork
