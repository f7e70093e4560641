/// What the commands look up in a module, and what they say of it.
#pragma once

#include <string>

#include "host/panel/name_book.h"
#include "host/panel/panel_config.h"
#include "host/panel/word_book.h"

namespace host {

/// Throws std::runtime_error for a gauge that the module does not have.
const GaugeHeader& find_gauge(const GaugeModule& module, const std::string& name);

/// Says on standard error which lines of the names file, or of the word files, are wrong.
void say_notes(const NameBook& names);
void say_notes(const WordBook& words);

/// The window for what a person typed: its ident, its title, or how only its title begins, letter case
/// aside. Throws std::runtime_error that lists what there is.
const WindowConfig& find_window(const PanelConfig& panel, const std::string& typed);

}  // namespace host
