/// The resources of a library for Windows.
#pragma once

#include "host/loader/library_file.h"

namespace host {

/// The bitmaps in a tree of resources; none if it has no branch of them. `root` is where the tree
/// stands in the image. What the tree points at and the image does not have is left out, a bitmap that
/// lies past the image's end is listed without its bytes. Of one bitmap in several languages the first
/// counts.
std::optional<std::vector<ListedBitmap>> bitmap_resources(Bytes image, std::uint32_t root);

}  // namespace host
