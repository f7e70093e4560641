/// artwork: draws the module's bitmaps.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "resources/kit/records.h"
#include "resources/kit/type.h"
#include "resources/tool/library.h"
#include "resources/tool/windows_resources.h"

namespace {

using namespace artwork;

constexpr const char* usage = R"(artwork draws the module's bitmaps.

  artwork --png DIRECTORY [--scale N] [ID or NAME...]
      bitmaps as hosts see them, all of them unless named
  artwork --compose DIRECTORY [--scale N] [--boxes] [GAUGE...]
      gauges, each in three poses; with their click boxes
  artwork --list
      number, size, bits and subject of every bitmap
  artwork --out DIRECTORY --dense DIRECTORY --cache DIRECTORY --kit FILE --objects FILE
      what the build needs: the sections at all three densities, the first also as resources for Windows.
      Draws what is not in the cache. The kit is the library of the drawing code, the objects' file lists
      those of the units
)";

constexpr int exit_fine = 0, exit_failed = 1, exit_usage = 2;

struct Arguments {
  std::string out, dense, cache, kit, objects, png, compose;
  int scale = 1;
  bool boxes = false;
  bool list = false;
  bool help = false;
  std::vector<std::string> names;  ///< of bitmaps or gauges; empty: all

  bool asks_for_something() const {
    return help || list || !out.empty() || !png.empty() || !compose.empty();
  }
};

/// A command line that cannot be understood; what() says why.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

Arguments parsed(int count, char** words) {
  Arguments arguments;
  std::string scale = "1";
  const std::map<std::string, std::string*> options{
      {"--out", &arguments.out},         {"--dense", &arguments.dense},
      {"--cache", &arguments.cache},     {"--kit", &arguments.kit},
      {"--png", &arguments.png},         {"--objects", &arguments.objects},
      {"--compose", &arguments.compose}, {"--scale", &scale}};
  const std::map<std::string, bool*> flags{
      {"--boxes", &arguments.boxes}, {"--list", &arguments.list}, {"--help", &arguments.help}};
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (const auto option = options.find(word); option != options.end()) {
      if (i + 1 == count) throw UsageError(word + " needs a value");
      *option->second = words[++i];
    } else if (const auto flag = flags.find(word); flag != flags.end()) {
      *flag->second = true;
    } else if (word.starts_with("-")) {
      throw UsageError("there is no option " + word);
    } else {
      arguments.names.push_back(word);
    }
  }
  arguments.scale = std::atoi(scale.c_str());
  if (arguments.scale < 1 || arguments.scale > 8) throw UsageError("--scale is a number from 1 to 8");
  if (!arguments.asks_for_something()) throw UsageError("nothing to draw is asked for");
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

/// The names that were asked for, and those that nothing had.
class Choice {
 public:
  explicit Choice(const std::vector<std::string>& names) : names_(names), unmet_(names) {}

  bool takes(const std::string& name) {
    std::erase(unmet_, name);
    return names_.empty() || std::ranges::find(names_, name) != names_.end();
  }

  void check(const char* what) const {
    if (!unmet_.empty()) throw std::runtime_error("there is no " + (what + (" " + unmet_.front())));
  }

 private:
  const std::vector<std::string>& names_;
  std::vector<std::string> unmet_;
};

/// Its number or its name.
std::string title(const Bitmap& bitmap) {
  return bitmap.id == Bitmap::named ? std::string(bitmap.art->of.name) : std::to_string(bitmap.id);
}

void write_pictures(const Arguments& arguments, const std::vector<Bitmap>& table) {
  Choice choice(arguments.names);
  for (const Bitmap& bitmap : table) {
    const std::string name = title(bitmap);
    if (!choice.takes(name)) continue;
    write_png(shown(bitmap, arguments.scale), arguments.png + "/" + name + ".png");
  }
  choice.check("bitmap");
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

void write_gauges(const Arguments& arguments) {
  Choice choice(arguments.names);
  for (const GaugeHeader* each : gauges())
    if (choice.takes(each->name)) write_gauge(arguments, *each);
  choice.check("gauge");
}

void print_list(const std::vector<Bitmap>& table) {
  for (const Bitmap& b : table) {
    std::printf("%6s %4d x %-4d %2d %s\n", b.id == Bitmap::named ? "" : title(b).c_str(), b.size.width,
                b.size.height, b.bits(), subject(b).c_str());
  }
}

void work(const Arguments& arguments) {
  if (arguments.help) return void(std::fputs(usage, stdout));
  if (!has_font(Lettering{}.family)) {
    throw std::runtime_error("the font " + std::string(Lettering{}.family) + " is not installed");
  }
  if (!arguments.out.empty()) write_sections(arguments);
  if (!arguments.png.empty()) write_pictures(arguments, bitmap_table());
  if (!arguments.compose.empty()) write_gauges(arguments);
  if (arguments.list) print_list(bitmap_table());
}

}  // namespace

int main(int count, char** words) {
  try {
    work(parsed(count, words));
    return exit_fine;
  } catch (const UsageError& error) {
    std::fprintf(stderr, "artwork: %s; see artwork --help\n", error.what());
    return exit_usage;
  } catch (const std::runtime_error& error) {
    std::fprintf(stderr, "artwork: %s\n", error.what());
    return exit_failed;
  }
}
