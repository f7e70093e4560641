/// artwork: draws the module's bitmaps.
///
///   artwork --out DIRECTORY --dense DIRECTORY --cache DIRECTORY --kit FILE --objects FILE
///       the sections at all three densities, the first also as resources for Windows; draws what is not in
///       the cache. The kit is the library of the drawing code, the other file lists the objects of the units
///   artwork --png DIRECTORY [--scale N] [ID or NAME...]      bitmaps as hosts see them
///   artwork --compose DIRECTORY [--scale N] [--boxes] [GAUGE...]  gauges, each in three poses
///   artwork --list                                           number, size, bits, subject of every bitmap
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "resources/kit/records.h"
#include "resources/kit/type.h"
#include "resources/tool/library.h"
#include "resources/tool/windows_resources.h"

namespace {

using namespace artwork;

struct Arguments {
  std::string out, dense, cache, kit, objects, png, compose;
  int scale = 1;
  bool boxes = false;
  bool list = false;
  std::vector<std::string> names;
};

Arguments parsed(int count, char** words) {
  Arguments arguments;
  std::string scale = "1";
  const std::map<std::string, std::string*> options{
      {"--out", &arguments.out},         {"--dense", &arguments.dense},
      {"--cache", &arguments.cache},     {"--kit", &arguments.kit},
      {"--png", &arguments.png},         {"--objects", &arguments.objects},
      {"--compose", &arguments.compose}, {"--scale", &scale}};
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (const auto option = options.find(word); option != options.end()) {
      if (i + 1 < count) *option->second = words[++i];
    } else if (word == "--boxes" || word == "--list") {
      (word == "--list" ? arguments.list : arguments.boxes) = true;
    } else {
      arguments.names.push_back(word);
    }
  }
  arguments.scale = std::atoi(scale.c_str());
  return arguments;
}

bool holds(const std::filesystem::path& path, const Bytes& bytes) {
  std::ifstream file(path, std::ios::binary);
  return file && Bytes(std::istreambuf_iterator<char>(file), {}) == bytes;
}

/// What is the same stays untouched, so that nothing is built again because of it.
void write_anew(const std::filesystem::path& file, const Bytes& bytes) {
  if (!holds(file, bytes)) write_file(file, bytes);
}

void write_sections(const Arguments& arguments) {
  const std::filesystem::path out = arguments.out, dense = arguments.dense;
  const std::vector<std::filesystem::path> files{out / "panelres.bin", dense / "Tarnvale.GAU.2x",
                                                 dense / "Tarnvale.GAU.3x"};
  Cache cache(arguments.cache, {arguments.kit, arguments.objects});
  const std::vector<Bytes> sections = drawn_sections(cache, static_cast<int>(files.size()));
  for (std::size_t i = 0; i < files.size(); ++i) {
    write_anew(files[i], sections[i]);
  }
  write_anew(out / "panelres.res", windows_resources(sections.front()));
  cache.sweep();
  std::printf("artwork: %d pictures drawn\n", cache.drawn());
}

bool chosen(const Arguments& arguments, const std::string& name) {
  return arguments.names.empty() ||
         std::find(arguments.names.begin(), arguments.names.end(), name) != arguments.names.end();
}

/// Its number or its name.
std::string title(const Bitmap& bitmap) {
  return bitmap.id == Bitmap::named ? std::string(bitmap.art->of.name) : std::to_string(bitmap.id);
}

void write_pictures(const Arguments& arguments, const std::vector<Bitmap>& table) {
  for (const Bitmap& bitmap : table) {
    const std::string name = title(bitmap);
    if (!chosen(arguments, name)) continue;
    write_png(shown(bitmap, arguments.scale), arguments.png + "/" + name + ".png");
  }
}

void write_gauge(const Arguments& arguments, const GaugeHeader& of) {
  const Size size = composed(of, {}, 1).size();
  const Canvas sheet({3 * size.width + 8, size.height}, arguments.scale, 0);
  for (int pose = 0; pose < 3; ++pose) {
    const Canvas gauge = composed(of, {pose, 0.1 + 0.4 * pose, arguments.boxes}, arguments.scale);
    const Saved saved(sheet);
    cairo_translate(sheet.cr(), pose * (size.width + 4), 0);
    cairo_scale(sheet.cr(), sheet.hairline(), sheet.hairline());
    cairo_set_source_surface(sheet.cr(), cairo_get_target(gauge.cr()), 0, 0);
    cairo_paint(sheet.cr());
  }
  write_png(sheet, arguments.compose + "/" + of.name + ".png");
}

}  // namespace

int main(int count, char** words) {
  const Arguments arguments = parsed(count, words);
  if (!has_font(Lettering{}.family)) {
    std::fprintf(stderr, "artwork: the font %s is not installed\n", Lettering{}.family);
    return 1;
  }
  const std::vector<Bitmap>& table = bitmap_table();
  if (!arguments.out.empty()) write_sections(arguments);
  if (!arguments.png.empty()) write_pictures(arguments, table);
  if (!arguments.compose.empty()) {
    for (const GaugeHeader* each : gauges()) {
      if (chosen(arguments, each->name)) write_gauge(arguments, *each);
    }
  }
  if (arguments.list) {
    for (const Bitmap& b : table) {
      std::printf("%6s %4d x %-4d %2d %s\n", b.id == Bitmap::named ? "" : title(b).c_str(),
                  b.size.width, b.size.height, b.bits(), subject(b).c_str());
    }
  }
  return 0;
}
