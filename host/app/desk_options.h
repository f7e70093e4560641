/// How the windows stand at the start: as they were left, and as the command line has it.
#pragma once

#include "host/app/options.h"
#include "host/panel/panel_config.h"

namespace host {

/// The options' deck with its desk, and where that is kept. `notes` tells what was remembered wrong.
/// Throws std::runtime_error for windows that are not there.
DeckOptions deck_options(const FlyOptions& options, const PanelConfig& panel, std::string& notes);

}  // namespace host
