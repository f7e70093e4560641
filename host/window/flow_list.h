/// The flows that the menu offers to watch.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host {

struct OfferedFlow {
  std::filesystem::path file;
  std::string words;  ///< the first sentence of the comment that it begins with; may be empty
};

/// The flows of a folder, by their names; none where there is no such folder.
std::vector<OfferedFlow> flows_in(const std::filesystem::path& folder);

}  // namespace host
