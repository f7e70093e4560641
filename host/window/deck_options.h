/// How a person wants to sit in the cockpit.
#pragma once

#include <filesystem>
#include <optional>

namespace host {

struct DeckOptions {
  std::optional<double> scale;           ///< of texts and borders; else the desktop's setting
  std::optional<double> zoom;            ///< screen pixels per panel pixel at scale 1; else what fits
  std::filesystem::path pictures = ".";  ///< where screenshots go
  std::filesystem::path record;          ///< a flow to write the person's inputs to; empty: none
  std::optional<double> exit_after;      ///< seconds
};

}  // namespace host
