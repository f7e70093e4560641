#include "host/gauge/needle_speed.h"

#include <cmath>

namespace host {
namespace {

constexpr double full_turn = 360;  // the full scale of a needle without a table, degrees

double full_scale(const NeedlePart& needle) {
  if (needle.table == nullptr || needle.table_length == 0) return full_turn;
  return std::abs(needle.table[needle.table_length - 1].value - needle.table[0].value);
}

}  // namespace

double needle_value_after(const NeedlePart& needle, double from, double to, double seconds) {
  if (!(needle.rate_limit > 0)) return to;
  const double step = needle.rate_limit * full_scale(needle) * seconds;
  double way = to - from;
  if (needle.table == nullptr) way = std::remainder(way, full_turn);
  return std::abs(way) > step ? from + std::copysign(step, way) : to;
}

}  // namespace host
