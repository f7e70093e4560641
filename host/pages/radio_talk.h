/// The airfield's controllers on the communication radio, in text.
///
/// Ground answers on 121.700 MHz and moves aircraft to and from the runway, the tower on 118.100 owns
/// the runway, the recorded information runs on 126.650. They hear an aircraft, and it them, within
/// line of sight.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "host/simulation/aircraft_model.h"

namespace host {

enum class RadioStation { ground, tower, information };

struct RadioStationRow {
  RadioStation station;
  std::string_view name;
  int khz;
};

std::span<const RadioStationRow> radio_stations();

/// The station on the frequency in use; null while none is heard.
const RadioStationRow* heard_station(const AircraftModel& aircraft);

enum class Request { push_back, taxi, take_off, landing };

struct RequestRow {
  Request request;
  std::string_view words;   ///< of the row to click
  std::string_view spoken;  ///< after the call signs
};

std::span<const RequestRow> request_table();

/// The runway that the wind favours: "07" up to five knots from behind, else "25".
std::string_view runway_in_use(const AircraftModel& aircraft);

/// What the recording says now. Its letter moves on every half hour.
std::string information(const AircraftModel& aircraft);

struct Exchange {
  std::string call;
  std::string answer;  ///< empty: nobody answers
};

/// What the crew says on the frequency in use and what comes back.
Exchange ask(const AircraftModel& aircraft, Request request);

/// "118.100"
std::string frequency_words(int khz);

}  // namespace host
