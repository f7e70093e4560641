/// What a person wants to fly next, when a flight is left for another one.
#pragma once

#include <filesystem>
#include <string>

#include "host/window/desk.h"

namespace host {

/// The states of the start page, by its controls' names.
enum class StartState { cold_and_dark, ready_to_start, running };

inline std::string name_of(StartState state) {
  return state == StartState::cold_and_dark    ? "cold_and_dark"
         : state == StartState::ready_to_start ? "ready_to_start"
                                               : "running";
}

struct NextFlight {
  std::string at = "stand";           ///< as start_places() names them
  std::optional<StartState> state{};  ///< on the stand; empty: the start page asks
  std::filesystem::path flow{};       ///< to be watched; empty: none
  Desk desk{};                        ///< how everything stood
};

}  // namespace host
