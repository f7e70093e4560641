#include "resources/plain_plates.h"

namespace artwork {
namespace {

/// Where several gauges share a plate, one of them stands for all.
constexpr PlainPlate table[] = {
    {"Msnd", 20},
};

}  // namespace

std::span<const PlainPlate> plain_plates() { return table; }

}  // namespace artwork
