/// Paths as the module writes them, found in a file system that minds slashes and letter case.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The existing file or directory that `path` names: either slash, any letter case, relative ones
/// from the current directory of SetCurrentDirectoryA. Nothing if there is none.
std::optional<std::string> find_path(std::string_view path);

}  // namespace platform
