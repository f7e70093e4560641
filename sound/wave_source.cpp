#include "sound/wave_source.h"

namespace tarnvale {
namespace {

/// A sound can be found without a usable format: then it is there, but it never plays.
bool read_image(Bytes image, WaveSource& source) {
  if (!parse_wave(image, nullptr, &source.samples)) return false;
  Bytes samples;
  if (!parse_wave(image, &source.format, &samples)) source.format = {};
  return true;
}

bool find_resource(HMODULE module, const char* path, WaveSource& source) {
  const HRSRC resource = FindResourceA(module, path, "WAVE");
  if (resource == nullptr) return false;
  const HGLOBAL loaded = LoadResource(module, resource);
  const void* image = loaded != nullptr ? LockResource(loaded) : nullptr;
  if (image == nullptr) return false;
  const std::size_t size = SizeofResource(module, resource);
  return read_image({static_cast<const std::byte*>(image), size}, source);
}

/// Maps a whole file for reading; null if that is not possible.
const void* map_file(const char* path, std::size_t& size) {
  const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return nullptr;
  size = GetFileSize(file, nullptr);  // a WAV's own sizes have 32 bits too
  const HANDLE mapping = CreateFileMappingA(file, nullptr, PAGE_READONLY, 0, 0, nullptr);
  CloseHandle(file);
  if (mapping == nullptr) return nullptr;
  const void* view = MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0);
  CloseHandle(mapping);
  return view;
}

bool find_file(const char* path, WaveSource& source) {
  std::size_t size = 0;
  source.view = map_file(path, size);
  if (source.view == nullptr) return false;
  if (read_image({static_cast<const std::byte*>(source.view), size}, source)) return true;
  close_wave(source);
  return false;
}

}  // namespace

bool find_wave(HMODULE module, const char* path, WaveSource& source) {
  source = {};
  return find_resource(module, path, source) || find_file(path, source);
}

void close_wave(WaveSource& source) {
  if (source.view != nullptr) UnmapViewOfFile(source.view);
  source = {};
}

}  // namespace tarnvale
