/// Whether the pictures on disk are still the ones that would be drawn now.
#pragma once

#include <filesystem>
#include <string>

namespace artwork {

/// A digest of all that the pictures depend on: the module's records and the drawing code, which is
/// the file `kit`.
std::string records_stamp(const std::filesystem::path& kit);

bool stamp_matches(const std::filesystem::path& file, const std::string& stamp);
void write_stamp(const std::filesystem::path& file, const std::string& stamp);

}  // namespace artwork
