/// The aircraft as its gauges read it.
#pragma once

#include "host/gauge/token_source.h"
#include "host/simulation/aircraft_model.h"

namespace host {

/// Gauges know no aircraft and the aircraft knows no gauges: here they meet. The aircraft must
/// outlive it.
class AircraftTokens final : public TokenSource {
 public:
  explicit AircraftTokens(const AircraftModel& aircraft) : aircraft_(aircraft) {}
  double token(std::uint32_t number) const override { return aircraft_.token(number); }
  bool failed(std::uint32_t key) const override { return aircraft_.failed(key); }
  bool any_failed() const override { return aircraft_.any_failed(); }

 private:
  const AircraftModel& aircraft_;
};

}  // namespace host
