/// The bitmaps that a module carries, and the denser ones in the files beside it.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/loader/mapped_file.h"
#include "host/loader/resource_section.h"

namespace host {

class ModuleBitmaps final : public BitmapStore {
 public:
  /// Takes the module's own bitmaps, whose bytes must outlive the store, and looks for the files
  /// `module` + ".2x" and ".3x".
  ModuleBitmaps(const std::vector<ListedBitmap>& own, const std::filesystem::path& module);
  ModuleBitmaps(Bytes own_section, const std::filesystem::path& module)
      : ModuleBitmaps(listed_bitmaps(own_section), module) {}

  PanelSize size(std::uint32_t id) const override;
  bool has(std::uint32_t id, int density) const override;
  std::shared_ptr<const Bitmap> find(std::uint32_t id, BitmapUse use, int density = 1) const override;

  std::vector<int> densities() const override;

  /// The module's own bitmap; null if there is none. Unlike find() this converts nothing.
  const Dib* own(std::uint32_t id) const { return sets_.front().section.find(id); }

  /// "bitmap 12 is damaged: ..." or "there is no bitmap 12".
  std::string why_missing(std::uint32_t id) const;

  /// The module's own damaged bitmaps, a line for each.
  const std::vector<std::string>& notes() const { return sets_.front().section.notes(); }

  /// What is wrong with the denser artwork, a line for each file, which it names. A file that is not
  /// there is not wrong.
  const std::vector<std::string>& dense_faults() const { return dense_faults_; }

 private:
  struct DensitySet {
    int density;
    std::optional<MappedFile> file;  // none for the module's own
    ResourceSection section;
    mutable std::map<std::pair<std::uint32_t, BitmapUse>, std::weak_ptr<const Bitmap>> pictures;
  };

  static std::optional<Bitmap> decode_from(const MappedFile& file, const Dib& source, BitmapUse use);
  void add_dense(int density, const std::filesystem::path& file);
  std::vector<std::string> faults_of(const DensitySet& set) const;
  void keep_for_a_while(const std::shared_ptr<const Bitmap>& bitmap) const;
  const DensitySet* set_of(int density) const;
  const Dib* dib(const DensitySet& set, std::uint32_t id) const;

  std::vector<DensitySet> sets_;
  std::vector<std::string> dense_faults_;
  mutable std::deque<std::shared_ptr<const Bitmap>> recent_;  ///< of the module's own
  mutable std::size_t recent_pixels_ = 0;
};

}  // namespace host
