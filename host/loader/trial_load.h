/// Finds out whether the system can load a library without trusting it with this program.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>

namespace host {

/// Loads a library in a process of its own, and looks for symbols in it. Empty when that goes well,
/// otherwise what happened, worded to follow "cannot be loaded: ". The system's loader believes all
/// that a library's tables say: where they are damaged it reads or writes anywhere, or goes round in
/// circles.
std::string trial_load(const std::filesystem::path& library,
                       std::initializer_list<const char*> symbols);

}  // namespace host
