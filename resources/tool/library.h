/// Drawing many bitmaps at once, those that have changed, and what an artist looks at: single pictures
/// and whole gauges.
#pragma once

#include <atomic>
#include <filesystem>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "interface/panel_interface.h"
#include "resources/bitmap_table.h"
#include "resources/tool/indexed.h"
#include "resources/tool/keys.h"
#include "resources/tool/section.h"

namespace artwork {

/// Finished pictures of earlier runs, a file each.
class Cache {
 public:
  Cache(std::filesystem::path folder, const DrawingCode& code);

  /// The packed bitmap of the table at a density: drawn, unless it is here. May be called from several
  /// threads at once.
  Bytes packed_bitmap(const Bitmap& bitmap, int density);

  /// Removes what no call has asked for.
  void sweep() const;

  int drawn() const { return drawn_; }

 private:
  std::filesystem::path folder_;
  Keys keys_;
  std::mutex mutex_;
  std::set<std::string> used_;
  std::atomic<int> drawn_ = 0;
};

/// The sections of all bitmaps at densities 1 to `densities`, drawn on all processors.
std::vector<Bytes> drawn_sections(Cache& cache, int densities);

void write_file(const std::filesystem::path& path, const Bytes& bytes);

/// A host's view of an indexed picture.
Canvas shown(const Indexed& picture, int density);

/// A host's view of a bitmap, with as many colours as it has.
Canvas shown(const Bitmap& bitmap, int density);

/// Writes a canvas to `path`.
void write_png(const Canvas& canvas, const std::string& path);

/// How a composed gauge stands.
struct Pose {
  int image = 0;          ///< every icon shows this image, or its last
  double fraction = 0.5;  ///< of their scales that needles show
  bool boxes = false;     ///< outline the click boxes
};

/// A gauge put together from its records as a host would draw it by day.
Canvas composed(const GaugeHeader& gauge, const Pose& pose, int density);

}  // namespace artwork
