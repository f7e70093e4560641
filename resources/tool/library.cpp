#include "resources/tool/library.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <thread>

#include "resources/kit/records.h"

namespace artwork {
namespace {

/// Runs `job` for 0 to `count` - 1, each once, on all processors.
void in_parallel(std::size_t count, const std::function<void(std::size_t)>& job) {
  std::atomic<std::size_t> next{0};
  const auto work = [&] {
    for (std::size_t i = next++; i < count; i = next++) job(i);
  };
  std::vector<std::jthread> threads;
  for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i) threads.emplace_back(work);
  work();
}

Ground ground_of(const Bitmap& bitmap) {
  if (!bitmap.background) return Ground::plate;
  return has_openings(bitmap) ? Ground::sprites : Ground::none;
}

Indexed indexed(const Bitmap& bitmap, int density) {
  return indexed(drawn(bitmap, density), ground_of(bitmap), std::size_t{1} << bitmap.bits());
}

Canvas full_colour(const Bitmap& bitmap, int density) {
  return full_colour(drawn(bitmap, density), ground_of(bitmap));
}

Bytes packed(const Bitmap& bitmap, int density) {
  if (bitmap.bits() == 24) return packed(full_colour(bitmap, density));
  return packed(indexed(bitmap, density), bitmap.bits());
}

std::uint32_t premultiplied(const PaletteEntry& c) {
  const auto part = [&](std::uint32_t value) { return (value * c.opacity + 127) / 255; };
  return std::uint32_t{c.opacity} << 24 | part(c.red) << 16 | part(c.green) << 8 | part(c.blue);
}

SectionEntry entry(const Bitmap& bitmap, Bytes bytes) {
  const std::string name(bitmap.art->of.name);
  const auto id = name.empty() ? static_cast<std::uint32_t>(bitmap.id) : PANEL_RESOURCE_NAMED;
  return {id, name, std::move(bytes)};
}

}  // namespace

Cache::Cache(std::filesystem::path folder, const DrawingCode& code)
    : folder_(std::move(folder)), keys_(code) {
  std::filesystem::create_directories(folder_);
}

Bytes Cache::packed_bitmap(const Bitmap& bitmap, int density) {
  const std::string key = keys_.key(bitmap, density);
  {
    const std::lock_guard lock(mutex_);
    used_.insert(key);
  }
  const std::filesystem::path file = folder_ / key;
  if (std::ifstream found(file, std::ios::binary); found) {
    return {std::istreambuf_iterator<char>(found), {}};
  }
  ++drawn_;
  const Bytes bytes = packed(bitmap, density);
  // A run that is broken off leaves no half a picture under the key.
  const std::filesystem::path part = folder_ / (key + ".part");
  write_file(part, bytes);
  std::filesystem::rename(part, file);
  return bytes;
}

void Cache::sweep() const {
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    if (!used_.contains(entry.path().filename().string())) std::filesystem::remove(entry.path());
  }
}

std::vector<Bytes> drawn_sections(Cache& cache, int densities) {
  const std::vector<Bitmap>& table = bitmap_table();
  const auto count = static_cast<std::size_t>(densities);
  std::vector<std::vector<SectionEntry>> entries(count, std::vector<SectionEntry>(table.size()));
  // The densest pictures take longest and come first.
  in_parallel(table.size() * count, [&](std::size_t job) {
    const std::size_t i = job % table.size(), density = count - job / table.size();
    entries[density - 1][i] = entry(table[i], cache.packed_bitmap(table[i], static_cast<int>(density)));
  });
  std::vector<Bytes> sections;
  for (const auto& each : entries) sections.push_back(section(each));
  return sections;
}

void write_file(const std::filesystem::path& path, const Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) wrong("cannot write " + path.string());
}

Canvas shown(const Bitmap& bitmap, int density) {
  if (bitmap.bits() == 24) return full_colour(bitmap, density);
  Indexed picture = indexed(bitmap, density);
  if (bitmap.background) make_opaque(picture);
  return shown(picture, density);
}

Canvas shown(const Indexed& picture, int density) {
  Canvas canvas({picture.width / density, picture.height / density}, density, 0);
  const Pixels pixels = canvas.pixels();
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const auto at = static_cast<std::size_t>(y * picture.width + x);
      pixels.at(x, y) = premultiplied(picture.palette[picture.pixels[at]]);
    }
  }
  canvas.touched();
  return canvas;
}

void write_png(const Canvas& canvas, const std::string& path) {
  cairo_surface_write_to_png(cairo_get_target(canvas.cr()), path.c_str());
}

}  // namespace artwork
