/// artwork: draws the module's bitmaps.
///
///   artwork --out DIRECTORY --dense DIRECTORY [--kit FILE]   the sections, at all three densities
///   artwork --png DIRECTORY [--scale N] [ID...]              bitmaps as hosts see them
///   artwork --compose DIRECTORY [--scale N] [--boxes] [GAUGE...]  gauges, each in three poses
///   artwork --list                                           number, size, subject of every bitmap
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "resources/kit/legend.h"
#include "resources/kit/records.h"
#include "resources/tool/library.h"
#include "resources/tool/stamp.h"

namespace {

using namespace artwork;

struct Arguments {
  std::string out, dense, kit, png, compose;
  int scale = 1;
  bool boxes = false;
  bool list = false;
  std::vector<std::string> names;
};

Arguments parsed(int count, char** words) {
  Arguments arguments;
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    const auto next = [&] { return i + 1 < count ? std::string(words[++i]) : std::string(); };
    if (word == "--out")
      arguments.out = next();
    else if (word == "--dense")
      arguments.dense = next();
    else if (word == "--kit")
      arguments.kit = next();
    else if (word == "--png")
      arguments.png = next();
    else if (word == "--compose")
      arguments.compose = next();
    else if (word == "--scale")
      arguments.scale = std::atoi(next().c_str());
    else if (word == "--boxes")
      arguments.boxes = true;
    else if (word == "--list")
      arguments.list = true;
    else
      arguments.names.push_back(word);
  }
  return arguments;
}

void write_file(const std::filesystem::path& path, const Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!file) {
    std::fprintf(stderr, "artwork: cannot write %s\n", path.c_str());
    std::exit(1);
  }
}

/// Nothing is drawn again while neither the drawing nor the records have changed.
void write_sections(const Arguments& arguments, const std::vector<Bitmap>& table) {
  const std::filesystem::path out = arguments.out, dense = arguments.dense;
  const std::vector<std::filesystem::path> files{out / "panelres.bin", dense / "Tarnvale.GAU.2x",
                                                 dense / "Tarnvale.GAU.3x"};
  const std::string stamp = records_stamp(arguments.kit);
  const bool fresh = stamp_matches(out / "panelres.stamp", stamp);
  for (int density = 1; density <= 3; ++density) {
    const auto& file = files[static_cast<std::size_t>(density - 1)];
    if (fresh && std::filesystem::exists(file)) {
      std::filesystem::last_write_time(file, std::filesystem::file_time_type::clock::now());
    } else {
      write_file(file, drawn_section(table, density));
    }
  }
  write_stamp(out / "panelres.stamp", stamp);
}

bool chosen(const Arguments& arguments, const std::string& name) {
  return arguments.names.empty() ||
         std::find(arguments.names.begin(), arguments.names.end(), name) != arguments.names.end();
}

void write_pictures(const Arguments& arguments, const std::vector<Bitmap>& table) {
  for (const Bitmap& bitmap : table) {
    const std::string name = std::to_string(bitmap.id);
    if (!chosen(arguments, name)) continue;
    Indexed picture = indexed(drawn(bitmap, arguments.scale), bitmap.background);
    if (bitmap.background) make_opaque(picture);
    write_png(shown(picture, arguments.scale), arguments.png + "/" + name + ".png");
  }
}

void write_gauge(const Arguments& arguments, const std::vector<Bitmap>& table, const GaugeHeader& of) {
  const Size size = composed(table, of, {}, 1).size();
  const Canvas sheet({3 * size.width + 8, size.height}, arguments.scale, 0);
  for (int pose = 0; pose < 3; ++pose) {
    const Canvas gauge =
        composed(table, of, {pose, 0.1 + 0.4 * pose, arguments.boxes}, arguments.scale);
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
  const std::vector<Bitmap> table = bitmap_table();
  if (!arguments.out.empty()) write_sections(arguments, table);
  if (!arguments.png.empty()) write_pictures(arguments, table);
  if (!arguments.compose.empty()) {
    for (const GaugeHeader* each : gauges()) {
      if (chosen(arguments, each->name)) write_gauge(arguments, table, *each);
    }
  }
  if (arguments.list) {
    for (const Bitmap& b : table) {
      std::printf("%6d %4d x %-4d %.*s\n", b.id, b.size.width, b.size.height,
                  static_cast<int>(b.shows.size()), b.shows.data());
    }
  }
  return 0;
}
