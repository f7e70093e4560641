#include "host/outside/land_map.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "host/outside/texture_noise.h"

namespace host::outside {
namespace {

constexpr unsigned bits = 11, side = 1u << bits, mask = side - 1;
constexpr double texel_m = 8.0;

// What grows early in May, most of it green.
constexpr std::array<std::uint32_t, 12> crops{0x5E7A3C, 0x6B8745, 0x547038, 0x7A9150,
                                              0x4E6B36, 0x66803F, 0x87945A, 0xA89A6A,
                                              0x8A7454, 0x71603F, 0xB5AE4E, 0x5A7A4A};
constexpr std::uint32_t road = 0x9A968C, hedge = 0x3C5230, wood = 0x2F4A2A, water = 0x4A6274;
constexpr std::uint32_t roof = 0x866252, street = 0x8C8A84, garden = 0x566E44;

enum Mark : std::uint16_t { on_road, on_hedge, first_field };

std::uint32_t shaded(std::uint32_t colour, double by) {
  const auto channel = [&](unsigned shift) {
    return static_cast<std::uint32_t>(std::clamp((colour >> shift & 255) * by, 0.0, 255.0)) << shift;
  };
  return channel(16) | channel(8) | channel(0);
}

// The land parted into fields, again and again; the first cuts carry roads, the last ones hedges.
class Fields {
 public:
  Fields() : marks_(std::size_t(side) * side) { part(0, 0, side, side, 0); }

  std::uint16_t at(unsigned x, unsigned y) const { return marks_[(y & mask) * side + (x & mask)]; }

  /// One more than the greatest mark.
  std::uint32_t marks() const { return first_field + fields_ + 1; }

 private:
  double chance() { return scattered(++count_, 1, 77); }

  void part(unsigned x, unsigned y, unsigned width, unsigned height, int depth) {
    const unsigned longer = std::max(width, height);
    if (longer < 26 || (longer < 70 && chance() < 0.35)) return plant(x, y, width, height);
    const bool across = width >= height;
    const auto cut = static_cast<unsigned>(longer * (0.36 + 0.28 * chance()));
    if (across) {
      part(x, y, cut, height, depth + 1);
      part(x + cut, y, width - cut, height, depth + 1);
    } else {
      part(x, y, width, cut, depth + 1);
      part(x, y + cut, width, height - cut, depth + 1);
    }
    const auto mark = depth < 5 ? on_road : on_hedge;
    if (mark == on_hedge && chance() < 0.4) return;
    for (unsigned i = 0; i < (across ? height : width); ++i)
      marks_[across ? (y + i) * side + x + cut : (y + cut) * side + x + i] = mark;
  }

  void plant(unsigned x, unsigned y, unsigned width, unsigned height) {
    const auto field = static_cast<std::uint16_t>(first_field + ++fields_);
    for (unsigned row = y; row < y + height; ++row) std::fill_n(&marks_[row * side + x], width, field);
  }

  std::vector<std::uint16_t> marks_;
  std::uint32_t count_ = 0, fields_ = 0;
};

struct Village {
  double x, y, radius;
};

std::vector<Village> villages() {
  std::vector<Village> all;
  for (std::uint32_t i = 0; i < 34; ++i)
    all.push_back(
        {scattered(i, 1, 5) * side, scattered(i, 2, 5) * side, 14.0 + 22.0 * scattered(i, 3, 5)});
  return all;
}

// What grows on a field.
struct Crop {
  std::uint32_t colour = 0;
  double tone = 1.0;
};

std::vector<Crop> crops_by_mark(std::uint32_t marks) {
  std::vector<Crop> all;
  for (std::uint32_t mark = 0; mark < marks; ++mark) {
    const double chance = scattered(mark, 9, 3);
    all.push_back({crops[static_cast<std::size_t>(chance * chance * crops.size())],
                   0.94 + 0.12 * scattered(mark, 4, 3)});
  }
  return all;
}

class Land {
 public:
  std::vector<std::uint32_t> painted() {
    std::vector<std::uint32_t> texels(std::size_t(side) * side);
    for (unsigned y = 0; y < side; ++y) {
      const auto course = course_.row_between(y / 4.0, side, 4),
                 low = low_.row_between(y / 4.0, side, 4);
      const auto woods = trees_.row_between(y / 4.0, side, 4);
      for (unsigned x = 0; x < side; ++x) texels[y * side + x] = at(x, y, course[x], low[x], woods[x]);
    }
    for (const Village& village : villages()) build(texels, village);
    return texels;
  }

 private:
  std::uint32_t at(unsigned x, unsigned y, double course, double low, double woods) const {
    const double river = std::abs(course - 0.5);
    if (river < 0.0035 || low < 0.205) return water;
    if (is_wood(x, y, woods) || river < 0.0065)
      return shaded(wood, 0.84 + 0.36 * scattered(x / 2, y / 2, 9));
    const std::uint16_t mark =
        fields_.at(x + slow_bend_[y] + fast_bend_[x], y + slow_bend_[x] + fast_bend_[y]);
    if (mark == on_road) return road;
    if (mark == on_hedge) return hedge;
    const Crop& crop = crops_[mark];
    return shaded(crop.colour, crop.tone + 0.24 * (soil_.at(x, y) - 0.5));
  }

  // The edge of a wood frays.
  static bool is_wood(unsigned x, unsigned y, double woods) {
    constexpr double edge = 0.60, fringe = 0.025;
    if (std::abs(woods - edge) > fringe) return woods > edge;
    return woods + 2 * fringe * (scattered(x, y, 8) - 0.5) > edge;
  }

  // Nothing in this country is quite straight: waves of fields, roads and hedges with it.
  static std::vector<unsigned> bend(double texels, int waves) {
    std::vector<unsigned> by;
    for (unsigned i = 0; i < side; ++i)
      by.push_back(static_cast<unsigned>(static_cast<int>(
          std::lround(texels * std::sin(2.0 * std::numbers::pi * waves * i / side + waves)))));
    return by;
  }

  static void build(std::vector<std::uint32_t>& texels, const Village& village) {
    const int reach = static_cast<int>(village.radius);
    for (int dy = -reach; dy <= reach; ++dy)
      for (int dx = -reach; dx <= reach; ++dx) {
        const auto x = static_cast<unsigned>(static_cast<int>(village.x) + dx) & mask;
        const auto y = static_cast<unsigned>(static_cast<int>(village.y) + dy) & mask;
        const double chance = scattered(x, y, 6), distance = std::hypot(dx, dy) / village.radius;
        if (distance > 0.65 + 0.35 * scattered(x / 4, y / 4, 7)) continue;
        std::uint32_t& texel = texels[y * side + x];
        if (texel == road || texel == water) continue;
        const bool along_street = x % 11 == 0 || (y + x / 5) % 13 == 0;
        texel = along_street ? street
                             : shaded(chance < 0.34 ? roof : garden, 0.9 + 0.2 * scattered(y, x, 6));
      }
  }

  Fields fields_;
  std::vector<Crop> crops_ = crops_by_mark(fields_.marks());
  std::vector<unsigned> slow_bend_ = bend(26.0, 3), fast_bend_ = bend(15.0, 5);
  SoftNoise trees_{9, 16, 5, 0.5, 21}, low_{9, 6, 5, 0.45, 31}, course_{9, 4, 6, 0.42, 41};
  SoftNoise soil_{9, 64, 3, 0.7, 51};
};

std::uint32_t mean_colour(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  constexpr std::uint32_t outer = 0xFF00FF, middle = 0xFF00;
  const std::uint32_t red_and_blue = (a & outer) + (b & outer) + (c & outer) + (d & outer) + 0x20002;
  const std::uint32_t green = (a & middle) + (b & middle) + (c & middle) + (d & middle) + 0x200;
  return (red_and_blue >> 2 & outer) | (green >> 2 & middle);
}

// Each texel of grain also holds its neighbours, so that one look finds all that lies around a point.
void add_neighbours(std::vector<std::uint32_t>& texels, unsigned level_bits) {
  const unsigned level_side = 1u << level_bits;
  const std::vector<std::uint32_t> own = texels;
  const auto at = [&](unsigned x, unsigned y) {
    return own[(y % level_side) << level_bits | (x % level_side)] & 255;
  };
  for (unsigned y = 0; y < level_side; ++y)
    for (unsigned x = 0; x < level_side; ++x)
      texels[y << level_bits | x] =
          at(x, y) | at(x + 1, y) << 8 | at(x, y + 1) << 16 | at(x + 1, y + 1) << 24;
}

TextureLevels made_grain() {
  constexpr unsigned grain_bits = 8, grain_side = 1u << grain_bits;
  const SoftNoise noise(grain_bits, 16, 5, 0.8, 61);
  std::vector<std::uint32_t> texels;
  for (unsigned y = 0; y < grain_side; ++y)
    for (unsigned x = 0; x < grain_side; ++x)
      texels.push_back(static_cast<std::uint32_t>(std::clamp(
          128.0 + 190.0 * (noise.at(x, y) - 0.5) + 16.0 * (scattered(x, y, 62) - 0.5), 60.0, 196.0)));
  TextureLevels grain(grain_bits, 1.0, std::move(texels), mean_colour);
  grain.each_level(add_neighbours);
  return grain;
}

std::vector<VillageLamp> made_lamps() {
  std::vector<VillageLamp> lamps;
  std::uint32_t number = 0;
  for (const Village& village : villages()) {
    const int count = static_cast<int>(village.radius * 2.2);
    for (int i = 0; i < count; ++i, ++number) {
      const double angle = 2.0 * std::numbers::pi * scattered(number, 1, 71);
      const double distance = village.radius * std::sqrt(scattered(number, 2, 71)) * 0.95;
      lamps.push_back({static_cast<float>((village.y + distance * std::sin(angle)) * texel_m),
                       static_cast<float>((village.x + distance * std::cos(angle)) * texel_m)});
    }
  }
  for (std::uint32_t farm = 0; farm < 260; ++farm)
    lamps.push_back({static_cast<float>(scattered(farm, 3, 71) * side * texel_m),
                     static_cast<float>(scattered(farm, 4, 71) * side * texel_m)});
  return lamps;
}

}  // namespace

TextureLevels::TextureLevels(unsigned largest_bits, double texel, std::vector<std::uint32_t> largest,
                             std::uint32_t (*mean)(std::uint32_t, std::uint32_t, std::uint32_t,
                                                   std::uint32_t))
    : bits_(largest_bits), texel_m_(texel) {
  levels_.push_back(std::move(largest));
  for (unsigned level_bits = bits_; level_bits-- > 0;) {
    const std::vector<std::uint32_t>& above = levels_.back();
    std::vector<std::uint32_t> level;
    level.reserve(std::size_t(1) << 2 * level_bits);
    for (unsigned y = 0; y < 1u << level_bits; ++y)
      for (unsigned x = 0; x < 1u << level_bits; ++x) {
        const std::uint32_t* corner = &above[(2 * y) << (level_bits + 1) | 2 * x];
        const std::uint32_t* below = corner + (std::size_t(2) << level_bits);
        level.push_back(mean(corner[0], corner[1], below[0], below[1]));
      }
    levels_.push_back(std::move(level));
  }
}

const LandMap& land_map() {
  static const LandMap map{TextureLevels(bits, texel_m, Land().painted(), mean_colour), made_grain(),
                           made_lamps(), side * texel_m};
  return map;
}

}  // namespace host::outside
