#include "resources/plain_plates.h"

namespace artwork {
namespace {

/// Where several gauges share a plate, one of them stands for all.
constexpr PlainPlate table[] = {
    {"Msnd", 20},    {"Trim", 84},    {"Stabind", 90},  {"Gear", 210},
    {"Flapind", 72}, {"Gearind", 84}, {"Gustlock", 22}, {"Pushback", 178},
};

}  // namespace

std::span<const PlainPlate> plain_plates() { return table; }

}  // namespace artwork
