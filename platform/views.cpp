#include <sys/mman.h>
#include <sys/stat.h>
#include <windows.h>

#include <cstdint>
#include <map>

#include "platform/file_handles.h"

namespace {

/// Where views start in a file, on every machine: the real system's granularity.
constexpr std::uint64_t granularity = 0x10000;

/// Sizes of the mapped views by address.
std::map<const void*, std::size_t>& views() {
  static std::map<const void*, std::size_t> mapped;
  return mapped;
}

/// How many bytes a view has that starts at `offset`; 0 if there can be none.
std::size_t view_length(int descriptor, std::uint64_t offset, std::size_t wanted) {
  struct stat status {};
  if (offset % granularity != 0 || fstat(descriptor, &status) != 0) return 0;
  const auto size = static_cast<std::uint64_t>(status.st_size);
  if (offset >= size || wanted > size - offset) return 0;
  return wanted == 0 ? static_cast<std::size_t>(size - offset) : wanted;
}

}  // namespace

LPVOID MapViewOfFile(HANDLE mapping, DWORD access, DWORD offset_high, DWORD offset_low,
                     SIZE_T length) {
  const auto descriptor = platform::descriptor_of(mapping, platform::HandleKind::mapping);
  if (!descriptor || access != FILE_MAP_READ) return nullptr;
  const std::uint64_t offset = std::uint64_t{offset_high} << 32 | offset_low;
  const std::size_t size = view_length(*descriptor, offset, length);
  if (size == 0) return nullptr;
  void* view = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, *descriptor, static_cast<off_t>(offset));
  if (view == MAP_FAILED) return nullptr;
  views()[view] = size;
  return view;
}

BOOL UnmapViewOfFile(LPCVOID view) {
  const auto found = views().find(view);
  if (found == views().end()) return FALSE;
  munmap(const_cast<void*>(view), found->second);
  views().erase(found);
  return TRUE;
}
