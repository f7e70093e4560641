/// What each picture depends on, as one key: while the key is the same, the picture is.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "resources/bitmap_table.h"

namespace artwork {

/// The compiled code that draws.
struct DrawingCode {
  std::filesystem::path kit;      ///< the library of everything that all units share
  std::filesystem::path objects;  ///< a list of the units' objects, a path a line
};

class Keys {
 public:
  explicit Keys(const DrawingCode& code);

  /// A name for the picture of a bitmap at a density. A unit's pictures follow its own object, the
  /// records of its gauge, and the units that draw what stands on its plate; all pictures follow the
  /// kit, the shared units, and how the fonts look here.
  std::string key(const Bitmap& bitmap, int density) const;

 private:
  std::uint64_t unit_digest(const Unit* unit) const;
  std::uint64_t gauge_digest(const GaugeHeader& gauge) const;

  std::map<const Unit*, std::uint64_t> units_;
  std::uint64_t base_;
};

}  // namespace artwork
