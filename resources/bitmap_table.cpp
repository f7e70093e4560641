#include "resources/bitmap_table.h"

#include <algorithm>
#include <utility>

#include "resources/kit/records.h"
#include "resources/rows/draw.h"

namespace artwork {
namespace {

constexpr std::string_view lighting_part = "instrument_lighting";
constexpr int lighting_levels = 3;

/// A run of bitmaps as the records number it. A run of gauges' own says how many images it has.
struct Run {
  int id;
  int images;
};

Run run_of(const Element& element, const Picture& picture) {
  if (std::holds_alternative<Mask>(picture)) return {element.moving_image.mask_resource_id, 1};
  const bool icon = element.kind == ELEMENT_ICON;
  return {element.resource_id, icon ? static_cast<int>(element.icon.image_count) : 1};
}

/// What points to the right from its pivot is as large as it needs, and even about its axis.
Size size_of(const Element& element, const Art& art) {
  const auto* needle = std::get_if<Needle>(&art.picture);
  const auto* bug = std::get_if<Bug>(&art.picture);
  if (needle == nullptr && bug == nullptr) return art.size;
  const PanelPoint pivot = element.needle.center;
  const double length = needle == nullptr ? bug->to : needle->length;
  return {static_cast<int>(pivot.x + length + 2), 2 * pivot.y + 1};
}

std::string name_of(const Unit& unit, const Art& art) {
  if (!art.of.name.empty()) return std::string(art.of.name);
  if (art.of.part.empty()) return "bitmap " + std::to_string(art.of.bitmaps.id);
  return std::string(unit.gauge) + ' ' + std::string(art.of.part);
}

class Table {
 public:
  void add(const Unit& unit, const Art& art) {
    if (std::holds_alternative<Plate>(art.picture)) return add_plate(unit, art);
    if (!art.of.name.empty()) return add(unit, art, {Bitmap::named, 1}, art.size);
    if (art.of.part.empty()) {
      return add(unit, art, {art.of.bitmaps.id, static_cast<int>(art.of.bitmaps.images)}, art.size);
    }
    const Element& element = part(gauge(unit.gauge), art.of.part);
    add(unit, art, run_of(element, art.picture), size_of(element, art));
  }

  std::vector<Bitmap> ascending() {
    const auto key = [](const Bitmap& bitmap) { return std::pair(bitmap.id, bitmap.art->of.name); };
    std::sort(all_.begin(), all_.end(),
              [&](const Bitmap& a, const Bitmap& b) { return key(a) < key(b); });
    for (std::size_t i = 1; i < all_.size(); ++i) {
      if (key(all_[i]) == key(all_[i - 1])) wrong("two rows draw " + subject(all_[i]));
    }
    return std::move(all_);
  }

 private:
  void add(const Unit& unit, const Art& art, Run run, Size size) {
    const int drawn = image_count(art.picture);
    if (drawn != 0 && drawn != run.images) {
      wrong(name_of(unit, art) + " has " + std::to_string(run.images) + " images, and its row draws " +
            std::to_string(drawn));
    }
    for (int image = 0; image < run.images; ++image) {
      all_.push_back({run.id + image, image, size, &unit, &art, false});
    }
  }

  void add_plate(const Unit& unit, const Art& art) {
    const GaugeHeader& of = gauge(unit.gauge);
    const Size size{static_cast<int>(of.width_mm), art.size.height};
    all_.push_back({of.element_list[0]->resource_id, 0, size, &unit, &art, true});
    const Element* lighting = find_part(of, lighting_part);
    if (lighting == nullptr) return;
    for (int level = 0; level < lighting_levels; ++level) {
      all_.push_back({lighting->resource_id + level, level, size, &unit, &art, false, true});
    }
  }

  std::vector<Bitmap> all_;
};

std::vector<Bitmap> made_table() {
  Table table;
  for (const NamedUnit& named : units()) {
    for (const Art& art : named.unit.art) table.add(named.unit, art);
  }
  return table.ascending();
}

}  // namespace

const std::vector<Bitmap>& bitmap_table() {
  static const std::vector<Bitmap> table = made_table();
  return table;
}

const Bitmap* find_bitmap(int id) {
  const std::vector<Bitmap>& table = bitmap_table();
  const auto found =
      std::lower_bound(table.begin(), table.end(), id,
                       [](const Bitmap& bitmap, int value) { return bitmap.id < value; });
  return found == table.end() || found->id != id ? nullptr : &*found;
}

std::string subject(const Bitmap& bitmap) {
  const Of& of = bitmap.art->of;
  if (!of.name.empty()) return std::string(of.name);
  const std::string gauge(bitmap.unit->gauge.empty() ? "shared" : bitmap.unit->gauge);
  if (bitmap.background) return gauge + " plate";
  const std::string part(bitmap.overlay    ? lighting_part
                         : of.part.empty() ? "bitmap " + std::to_string(of.bitmaps.id)
                                           : std::string(of.part));
  return gauge + ' ' + part + " image " + std::to_string(bitmap.image);
}

bool has_openings(const Bitmap& bitmap) {
  const auto* plate = std::get_if<Plate>(&bitmap.art->picture);
  if (plate == nullptr) return false;
  return std::any_of(plate->items.begin(), plate->items.end(),
                     [](const Item& item) { return std::holds_alternative<Opening>(item); });
}

const GaugeHeader* gauge_of(const Unit& unit) {
  return unit.gauge.empty() ? nullptr : &gauge(unit.gauge);
}

Canvas drawn(const Bitmap& bitmap, int density) {
  // All pictures of a plate share its seed, so that grain stays where it is under an overlay.
  const auto seed = static_cast<std::uint32_t>(bitmap.size.width * 4099 + bitmap.size.height);
  Canvas canvas(bitmap.size, density, seed);
  draw(canvas, bitmap);
  return canvas;
}

}  // namespace artwork
