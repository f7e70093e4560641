#include "host/loader/module_bitmaps.h"

#include <algorithm>
#include <system_error>

namespace host {

ModuleBitmaps::ModuleBitmaps(const std::vector<ListedBitmap>& own,
                             const std::filesystem::path& module) {
  sets_.push_back({1, std::nullopt, ResourceSection(own), {}});
  for (const auto& [density, ending] : {std::pair{2, ".2x"}, std::pair{3, ".3x"}}) {
    std::filesystem::path file = module;
    file += ending;
    std::error_code missing;
    if (std::filesystem::exists(file, missing)) add_dense(density, file);
  }
}

void ModuleBitmaps::add_dense(int density, const std::filesystem::path& file) {
  const std::string name = file.string();
  try {
    MappedFile mapped(file);
    ResourceSection section(mapped.bytes());
    sets_.push_back({density, std::move(mapped), std::move(section), {}});
    const std::vector<std::string> faults = faults_of(sets_.back());
    sets_.back().file->forget();
    if (faults.empty()) return;
    const std::string more =
        faults.size() == 1 ? "" : ", and " + std::to_string(faults.size() - 1) + " more";
    dense_faults_.push_back(name + ": " + faults.front() + more);
  } catch (const ResourceError& error) {
    dense_faults_.push_back(name + ": " + error.what());
  } catch (const std::system_error& error) {
    dense_faults_.push_back(name + ": " + MappedFile::fault(error.code()));
  }
}

std::vector<std::string> ModuleBitmaps::faults_of(const DensitySet& set) const {
  std::vector<std::string> faults = set.section.notes();
  const auto size = [](int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
  };
  for (const auto& [id, found] : set.section.numbered()) {
    const Dib* plain = own(id);
    if (plain == nullptr || dib(set, id) != nullptr) continue;
    faults.push_back("bitmap " + std::to_string(id) + " has " + size(found.width, found.height) +
                     " pixels, not " + size(plain->width * set.density, plain->height * set.density));
  }
  return faults;
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

PanelSize ModuleBitmaps::size(std::uint32_t id) const {
  const Dib* found = own(id);
  return found ? PanelSize{found->width, found->height} : PanelSize{0, 0};
}

bool ModuleBitmaps::has(std::uint32_t id, int density) const {
  const DensitySet* set = set_of(density);
  return set != nullptr && dib(*set, id) != nullptr;
}

std::shared_ptr<const Bitmap> ModuleBitmaps::find(std::uint32_t id, BitmapUse use, int density) const {
  const DensitySet* set = set_of(density);
  const Dib* source = set == nullptr ? nullptr : dib(*set, id);
  if (source == nullptr) return nullptr;
  std::weak_ptr<const Bitmap>& known = set->pictures[{id, use}];
  if (auto held = known.lock()) return held;
  std::optional<Bitmap> bitmap =
      set->file ? decode_from(*set->file, *source, use) : decode(*source, use);
  if (!bitmap) return nullptr;
  auto made = std::make_shared<const Bitmap>(*std::move(bitmap));
  known = made;
  if (density == 1) keep_for_a_while(made);
  return made;
}

// A pointer that moves over a gauge asks for the same ones again and again.
void ModuleBitmaps::keep_for_a_while(const std::shared_ptr<const Bitmap>& bitmap) const {
  constexpr std::size_t most_pixels = std::size_t{1} << 20;
  recent_.push_back(bitmap);
  recent_pixels_ += bitmap->pixels.size();
  for (; recent_pixels_ > most_pixels; recent_.pop_front())
    recent_pixels_ -= recent_.front()->pixels.size();
}

// A file that has been cut short since it was opened has no pages where it was mapped, and touching
// them ends the program. So its bytes are read; where they are gone, the coarser bitmap must do.
std::optional<Bitmap> ModuleBitmaps::decode_from(const MappedFile& file, const Dib& source,
                                                 BitmapUse use) {
  const auto palette = file.copy(source.palette), rows = file.copy(source.rows);
  if (!palette || !rows) return std::nullopt;
  Dib copied = source;
  copied.palette = *palette;
  copied.rows = *rows;
  return decode(copied, use);
}

std::string ModuleBitmaps::why_missing(std::uint32_t id) const {
  const std::string name = "bitmap " + std::to_string(id);
  for (const std::string& damage : notes())
    if (damage.starts_with(name + " ")) return damage;
  return "there is no " + name;
}

std::vector<int> ModuleBitmaps::densities() const {
  std::vector<int> found;
  for (const DensitySet& set : sets_) found.push_back(set.density);
  return found;
}

}  // namespace host
