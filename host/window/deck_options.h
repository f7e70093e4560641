/// How a person wants to sit in the cockpit.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace host {

struct DeckOptions {
  std::optional<double> scale;           ///< of texts and borders; else the desktop's setting
  std::optional<double> zoom;            ///< screen pixels per panel pixel at scale 1; else what fits
  bool outside = true;                   ///< with the view out of the window
  std::filesystem::path controls;        ///< the file of keys and sticks; empty: hands off
  std::filesystem::path pictures = ".";  ///< where screenshots go
  std::filesystem::path record;          ///< a flow to write the person's inputs to; empty: none
  std::vector<std::string> begun_with;   ///< what the record begins with: calls of a flow
  std::optional<double> exit_after;      ///< seconds
};

}  // namespace host
