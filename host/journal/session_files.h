/// Where the journals of a person's sessions lie.
#pragma once

#include <cstddef>
#include <filesystem>

namespace host {

inline constexpr std::size_t kept_sessions = 20;

/// The folder for what programs keep between their runs: tarnvale in $XDG_STATE_HOME, or in
/// ~/.local/state where that is not set. Throws std::runtime_error when there is neither.
std::filesystem::path session_folder();

/// A new name in the folder, by date and time, for a session that begins now. Makes the folder, and
/// room: with the new one there are no more than kept_sessions. Throws std::runtime_error if it cannot.
std::filesystem::path new_session(const std::filesystem::path& folder);

/// The session that was flown last. Throws std::runtime_error when there is none.
std::filesystem::path last_session(const std::filesystem::path& folder);

}  // namespace host
