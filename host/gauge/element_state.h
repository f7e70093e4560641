/// What one element of a gauge shows.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "interface/panel_interface.h"

namespace host {

/// One element after a frame.
struct ElementState {
  const Element* element = nullptr;
  bool evaluated = false;          ///< neither hidden nor covered by a later copy
  bool drawn = false;              ///< evaluated and its picture not hidden
  std::array<double, 3> values{};  ///< one per value routine of its kind, failures applied
  std::string text;                ///< strings only; printable ASCII
  std::optional<double> reached;   ///< needles with a speed limit: how far the needle has come
};

}  // namespace host
