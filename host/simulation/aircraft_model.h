/// The aircraft behind the panel: what key events do and what token variables read.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "host/simulation/failure_row.h"
#include "host/simulation/flight/air_data.h"
#include "host/simulation/flight/flight_controls.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/navigation/tuning.h"
#include "host/simulation/placement.h"
#include "host/simulation/program_windows.h"
#include "host/simulation/sound_sources.h"
#include "host/simulation/table_row.h"

namespace host {

/// How the crew finds the aircraft. Either way it stands on its chocks, the brakes released; the chocks
/// go when the parking brake is first set.
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

  /// What flies the aircraft: hands and feet or a script write here between steps. The autopilot moves
  /// the surfaces beside them, and of this record the trim wheel and the throttle levers.
  simulation::FlightControls& controls();

  /// The day's weather: pressure, temperature, wind and gusts.
  simulation::Weather& weather();
  const simulation::Weather& weather() const;

  /// Where it is and how it moves.
  const simulation::FlightState& flight() const;

  /// Local time in seconds since midnight. Setting it takes 0 to 86400.
  double time_of_day_s() const;
  void set_time_of_day(double seconds);

  /// Puts both engines at a warm idle with battery and avionics on, as after a start some minutes ago.
  void make_ready();

  /// As the ground crew hands it over, for the start page: battery, avionics and auxiliary power unit
  /// on, fuel levers open, both engines standing and ready to idle at once.
  void hand_over();

  /// Lines it up for take-off as it is, at rest, the parking brake set.
  void place_on_runway();

  /// Puts it into trimmed, straight and level flight with everything running. Returns false where it
  /// cannot fly like that; it is then as near to it as it comes.
  bool place_in_flight(const simulation::InFlight& where);

  /// Applies a host key event at once. Returns false for a number that the aircraft does not know.
  bool key_event(std::uint32_t number, std::uint32_t value);

  /// What a host token variable reads; 0 for a number that the aircraft does not know.
  double token(std::uint32_t number) const;

  /// The identifications that the crew hears: of receiver 1, receiver 2 and the direction finder, in
  /// letters. Empty where nothing is received or the crew does not listen.
  std::array<std::string_view, 3> identifications_heard() const;

  /// What can be heard of it.
  simulation::SoundSources sound_sources() const;

  /// Fails or repairs the system behind a failure key. Returns false for a key that no system has.
  bool set_failed(std::uint32_t key, bool failed);
  bool failed(std::uint32_t key) const;
  bool any_failed() const;

  /// How many systems fail by chance in an hour; 0, as at the start: none.
  void set_failure_rate(double per_hour);
  double failure_rate() const;

  /// The places flown over, the oldest first, since the aircraft was last put somewhere.
  std::span<const simulation::Vector> track() const;

  /// The communication radio.
  const simulation::VhfTuning& com() const;
  bool com_powered() const;

  /// Which of the program's windows the cockpit's buttons have opened.
  const simulation::ProgramWindows& program_windows() const;

  /// Puts a token to a value by its name or number, for scripts and tests: a held reading that
  /// the models no longer change. An empty value lets it go again.
  void hold_token(std::uint32_t number, std::optional<double> value);
  std::vector<std::uint32_t> held_tokens() const;

  static std::span<const TableRow> tokens();
  static std::span<const TableRow> events();
  static std::span<const FailureRow> failures();

 private:
  struct Systems;
  std::unique_ptr<Systems> systems_;
};

}  // namespace host
