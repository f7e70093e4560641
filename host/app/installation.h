/// Where things lie on the user's disk, and what every command does before it touches the module.
#pragma once

#include <filesystem>
#include <string>

#include "host/app/options.h"
#include "platform/platform_host.h"

namespace host {

/// The folder of the running program; module, panel configuration, sounds and flows lie beside it.
std::filesystem::path program_folder();

/// `options` with absolute paths, and what lies beside the program where nothing was given.
CockpitOptions located(CockpitOptions options);

/// The flow file for what a person typed: a file, or the name of a flow beside the program.
std::filesystem::path find_flow(const std::string& typed);

/// Windows open on that X display; on the environment's where `name` is empty.
void use_display(const std::string& name);

/// Makes a folder for output if there is none. Throws std::runtime_error if it cannot be written to.
void prepare_folder(const std::filesystem::path& folder);

/// Gives the module what it looks for when its sounds start: a main window, its sounds relative to
/// the module's folder, and the audio to play them on. Call before the cockpit's first frame.
void prepare_platform(const CockpitOptions& options, PlatformAudio audio);

}  // namespace host
