/// How a person wants to sit in the cockpit.
#pragma once

#include <filesystem>
#include <optional>

namespace host {

struct DeckOptions {
  std::optional<double> scale;           ///< of texts and borders; else the desktop's setting
  std::optional<double> zoom;            ///< screen pixels per panel pixel at scale 1; else what fits
  bool outside = true;                   ///< with the view out of the window
  std::filesystem::path controls;        ///< the file of keys and sticks; empty: hands off
  std::filesystem::path checklists;      ///< the kneeboard's file; empty: none
  std::filesystem::path pictures = ".";  ///< where screenshots go
  std::optional<double> exit_after;      ///< seconds
};

}  // namespace host
