#include <sys/mman.h>
#include <windows.h>

#include <map>

#include "platform/file_handles.h"

namespace {

/// Sizes of the mapped views by address.
std::map<const void*, std::size_t>& views() {
  static std::map<const void*, std::size_t> mapped;
  return mapped;
}

}  // namespace

LPVOID MapViewOfFile(HANDLE mapping, DWORD access, DWORD offset_high, DWORD offset_low, SIZE_T length) {
  const auto descriptor = platform::descriptor_of(mapping, platform::HandleKind::mapping);
  const bool whole_file = offset_high == 0 && offset_low == 0 && length == 0;
  if (!descriptor || access != FILE_MAP_READ || !whole_file) return nullptr;
  const std::int64_t size = platform::file_size(*descriptor);
  if (size <= 0) return nullptr;
  const auto bytes = static_cast<std::size_t>(size);
  void* view = mmap(nullptr, bytes, PROT_READ, MAP_PRIVATE, *descriptor, 0);
  if (view == MAP_FAILED) return nullptr;
  views()[view] = bytes;
  return view;
}

BOOL UnmapViewOfFile(LPCVOID view) {
  const auto found = views().find(view);
  if (found == views().end()) return FALSE;
  munmap(const_cast<void*>(view), found->second);
  views().erase(found);
  return TRUE;
}
