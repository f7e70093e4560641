#include "host/loader/module_bitmaps.h"

#include <algorithm>
#include <system_error>

namespace host {

ModuleBitmaps::ModuleBitmaps(Bytes section, const std::filesystem::path& module) {
  sets_.push_back({1, std::nullopt, ResourceSection(section), {}});
  notes_ = sets_.front().section.notes();
  for (const auto& [density, ending] : {std::pair{2, ".2x"}, std::pair{3, ".3x"}}) {
    std::filesystem::path file = module;
    file += ending;
    std::error_code missing;
    if (std::filesystem::exists(file, missing)) add_dense(density, file);
  }
}

void ModuleBitmaps::add_dense(int density, const std::filesystem::path& file) {
  const std::string name = file.filename().string();
  try {
    MappedFile mapped(file);
    ResourceSection section(mapped.bytes());
    for (const std::string& note : section.notes()) notes_.push_back(name + ": " + note);
    sets_.push_back({density, std::move(mapped), std::move(section), {}});
  } catch (const ResourceError& error) {
    notes_.push_back(name + ": " + error.what());
  } catch (const std::system_error& error) {
    notes_.push_back(name + ": cannot be read: " + error.code().message());
  }
}

const ModuleBitmaps::DensitySet* ModuleBitmaps::set_of(int density) const {
  const auto set = std::ranges::find(sets_, density, &DensitySet::density);
  return set == sets_.end() ? nullptr : &*set;
}

// A denser bitmap counts only at exactly the module's own size times its density.
const Dib* ModuleBitmaps::dib(const DensitySet& set, std::uint32_t id) const {
  const Dib* plain = own(id);
  const Dib* found = set.section.find(id);
  if (plain == nullptr || found == nullptr) return nullptr;
  const bool fits =
      found->width == plain->width * set.density && found->height == plain->height * set.density;
  return fits ? found : nullptr;
}

const Bitmap* ModuleBitmaps::find(std::uint32_t id, BitmapUse use, int density) const {
  const DensitySet* set = set_of(density);
  if (set == nullptr) return nullptr;
  const auto kept = set->pictures.find({id, use});
  if (kept != set->pictures.end()) return &kept->second;
  const Dib* source = dib(*set, id);
  if (source == nullptr) return nullptr;
  return &set->pictures.emplace(std::pair{id, use}, decode(*source, use)).first->second;
}

std::vector<int> ModuleBitmaps::densities() const {
  std::vector<int> found;
  for (const DensitySet& set : sets_) found.push_back(set.density);
  return found;
}

}  // namespace host
