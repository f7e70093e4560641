/// How a person wants to sit in the cockpit.
#pragma once

#include <filesystem>
#include <optional>

#include "host/window/desk.h"

namespace host {

struct DeckOptions {
  std::optional<double> scale;       ///< of texts and borders; else the desktop's setting
  std::optional<double> zoom;        ///< screen pixels per panel pixel at scale 1; else what fits
  Desk desk;                         ///< how the windows stand at first
  std::filesystem::path desk_file;   ///< where it is kept when the person leaves; empty: nowhere
  std::filesystem::path controls;    ///< the file of keys and sticks; empty: hands off
  std::filesystem::path checklists;  ///< the kneeboard's file; empty: none
  std::filesystem::path flows;       ///< the folder of flows that the menu offers; empty: none
  std::filesystem::path pictures;    ///< where pictures go; empty: the desktop's folder for them
  std::optional<double> exit_after;  ///< seconds
};

}  // namespace host
