/// What somebody is told whose wish is refused.
#pragma once

#include <stdexcept>
#include <string>

/// The message of the error with which `act` ends; empty if it does not.
template <typename Error = std::runtime_error, typename Act>
std::string refusal(Act act) {
  try {
    act();
    return "";
  } catch (const Error& error) {
    return error.what();
  }
}
