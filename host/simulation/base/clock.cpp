#include "host/simulation/base/clock.h"

#include <array>

namespace host::simulation {

Date Clock::date() const {
  constexpr std::array<int, 12> days_in{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  constexpr double days_in_year = 365.0;
  const double midnights = std::floor((day_start_s + elapsed_s()) / day_s);
  Date date = first_date;
  date.day += static_cast<int>(std::fmod(midnights, days_in_year));
  for (; date.day > days_in[static_cast<std::size_t>(date.months_past)];
       date.months_past = (date.months_past + 1) % 12) {
    date.day -= days_in[static_cast<std::size_t>(date.months_past)];
  }
  return date;
}

}  // namespace host::simulation
