#include <unistd.h>

#include <fstream>

#include "host/loader/module_bitmaps.h"
#include "tests/fuzz/harness.h"
#include "tests/loader/resource_bytes.h"
#include "tests/rig/temp_folder.h"

namespace {

using Uses = std::initializer_list<host::BitmapUse>;

void find_all(const host::ModuleBitmaps& bitmaps, int density) {
  for (const std::uint32_t id : {10u, 11u, 12u})
    for (const host::BitmapUse use : Uses{host::BitmapUse::background, host::BitmapUse::image}) {
      const auto found = bitmaps.find(id, use, density);
      fuzz::must(!found || (found->width == 4 * density && found->height == 2 * density));
    }
}

}  // namespace

// The file of denser artwork beside a module, which is also cut short once it has been opened.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const TempFolder folder;
  static const std::string module = folder / "T.GAU", dense = module + ".2x";
  static const host::ByteList own = host::section_bytes({{10, host::plain_dib(4, 2, 0)},
                                                         {11, host::plain_dib(4, 2, 0xFFFFFF)},
                                                         {12, host::plain_dib(4, 2, 0xFF0000FF)}});
  std::ofstream(dense, std::ios::binary) << fuzz::text_of(data, size);
  const host::ModuleBitmaps whole(own, module), cut(own, module);
  for (const std::string& fault : whole.dense_faults()) fuzz::must(fault.starts_with(dense + ": "));
  find_all(whole, 2);
  find_all(whole, 1);
  if (truncate(dense.c_str(), static_cast<off_t>(size / 2)) == 0) find_all(cut, 2);
  return 0;
}
