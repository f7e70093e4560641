/// The aircraft behind the panel: what key events do and what token variables read.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "host/simulation/table_row.h"

namespace host {

/// How the crew finds the aircraft. Either way it stands on its chocks, the brakes released.
enum class StartCondition {
  cold,   ///< everything off
  ready,  ///< both engines at a warm idle, battery and avionics on
};

/// The simulated aircraft. Deterministic: the same calls give the same values to the bit.
class AircraftModel {
 public:
  AircraftModel();  ///< cold
  explicit AircraftModel(StartCondition condition);
  ~AircraftModel();

  /// Moves time on. Runs whole steps of a fixed length and keeps the rest for the next call.
  void advance(double seconds);

  /// Seconds simulated so far, whole steps only.
  double seconds() const;

  /// Applies a host key event at once. Returns false for a number that the aircraft does not know.
  bool key_event(std::uint32_t number, std::uint32_t value);

  /// What a host token variable reads; 0 for a number that the aircraft does not know.
  double token(std::uint32_t number) const;

  /// Fails or repairs the system behind a failure key.
  void set_failed(std::uint32_t key, bool failed);
  bool failed(std::uint32_t key) const;

  /// Puts a token to a value by its name or number, for scripts and tests: a held reading that
  /// the models no longer change. An empty value lets it go again.
  void hold_token(std::uint32_t number, std::optional<double> value);

  static std::span<const TableRow> tokens();
  static std::span<const TableRow> events();

 private:
  struct Systems;
  std::unique_ptr<Systems> systems_;
};

}  // namespace host
