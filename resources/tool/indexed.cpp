#include "resources/tool/indexed.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace artwork {
namespace {

constexpr std::uint32_t least_opacity = 3;   // fainter than this is nothing
constexpr std::uint32_t full_opacity = 251;  // stronger than this is everything
constexpr int refinements = 3;

using Vector = std::array<float, 4>;  // premultiplied blue, green, red; opacity

/// A colour of the picture and how many pixels have it.
struct Colour32 {
  std::uint32_t pixel;
  std::uint32_t count;
  Vector at;
};

Vector vector_of(std::uint32_t pixel) {
  return {static_cast<float>(pixel & 0xFF), static_cast<float>((pixel >> 8) & 0xFF),
          static_cast<float>((pixel >> 16) & 0xFF), static_cast<float>(pixel >> 24)};
}

std::uint32_t settled(std::uint32_t pixel, Ground ground) {
  if (ground == Ground::none) return pixel | 0xFF000000u;
  if (ground == Ground::sprites) return pixel >> 31 == 0 ? 0 : pixel | 0xFF000000u;
  if (pixel >> 24 < least_opacity) return 0;
  return pixel >> 24 > full_opacity ? pixel | 0xFF000000u : pixel;
}

std::vector<std::uint32_t> settled_pixels(const Canvas& canvas, Ground ground) {
  const Pixels from = canvas.pixels();
  std::vector<std::uint32_t> all;
  all.reserve(static_cast<std::size_t>(from.width * from.height));
  for (int y = 0; y < from.height; ++y) {
    for (int x = 0; x < from.width; ++x) all.push_back(settled(from.at(x, y), ground));
  }
  return all;
}

std::vector<Colour32> counted(std::vector<std::uint32_t> pixels) {
  std::sort(pixels.begin(), pixels.end());
  std::vector<Colour32> colours;
  for (const std::uint32_t pixel : pixels) {
    if (pixel == 0) continue;
    if (colours.empty() || colours.back().pixel != pixel) {
      colours.push_back({pixel, 0, vector_of(pixel)});
    }
    ++colours.back().count;
  }
  return colours;
}

/// A run of colours that share a palette entry until it is cut in two.
struct Cluster {
  std::size_t from, to;
  int axis;
  double spread;  ///< squared distance along its longest axis, over all its pixels
};

Cluster cluster(const std::vector<Colour32>& colours, std::size_t from, std::size_t to) {
  std::array<double, 4> sum{}, square{};
  double weight = 0;
  for (std::size_t i = from; i < to; ++i) {
    // Rare colours count for more than their pixels: a small bright lamp matters to the eye.
    const double w = std::sqrt(static_cast<double>(colours[i].count));
    weight += w;
    for (std::size_t k = 0; k < 4; ++k) {
      sum[k] += w * colours[i].at[k];
      square[k] += w * colours[i].at[k] * colours[i].at[k];
    }
  }
  Cluster made{from, to, 0, 0};
  for (std::size_t k = 0; k < 4; ++k) {
    const double spread = square[k] - sum[k] * sum[k] / weight;
    if (spread > made.spread) made.axis = static_cast<int>(k), made.spread = spread;
  }
  return made;
}

/// Cuts a cluster where its pixels' mean lies along the longest axis.
std::size_t cut(std::vector<Colour32>& colours, const Cluster& c) {
  const auto axis = static_cast<std::size_t>(c.axis);
  double sum = 0, weight = 0;
  for (std::size_t i = c.from; i < c.to; ++i) {
    const double w = std::sqrt(static_cast<double>(colours[i].count));
    sum += w * colours[i].at[axis], weight += w;
  }
  const auto mean = static_cast<float>(sum / weight);
  const auto middle = std::partition(colours.begin() + static_cast<std::ptrdiff_t>(c.from),
                                     colours.begin() + static_cast<std::ptrdiff_t>(c.to),
                                     [&](const Colour32& colour) { return colour.at[axis] <= mean; });
  return static_cast<std::size_t>(middle - colours.begin());
}

std::vector<Cluster> clusters(std::vector<Colour32>& colours, std::size_t most) {
  std::vector<Cluster> all{cluster(colours, 0, colours.size())};
  while (all.size() < most) {
    const auto widest = std::max_element(
        all.begin(), all.end(), [](const Cluster& a, const Cluster& b) { return a.spread < b.spread; });
    if (widest->spread <= 0) break;
    const Cluster whole = *widest;
    const std::size_t middle = cut(colours, whole);
    if (middle == whole.from || middle == whole.to) {
      widest->spread = 0;
      continue;
    }
    *widest = cluster(colours, whole.from, middle);
    all.push_back(cluster(colours, middle, whole.to));
  }
  return all;
}

float distance(const Vector& a, const Vector& b) {
  float sum = 0;
  for (std::size_t k = 0; k < 4; ++k) sum += (a[k] - b[k]) * (a[k] - b[k]);
  return sum;
}

std::size_t nearest(const std::vector<Vector>& centres, const Vector& colour) {
  std::size_t best = 0;
  float least = std::numeric_limits<float>::max();
  for (std::size_t i = 0; i < centres.size(); ++i) {
    const float d = distance(centres[i], colour);
    if (d < least) least = d, best = i;
  }
  return best;
}

std::vector<Vector> centres_of(const std::vector<Colour32>& colours,
                               const std::vector<std::size_t>& owner, std::vector<Vector> centres) {
  std::vector<std::array<double, 5>> sums(centres.size());
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const double w = std::sqrt(static_cast<double>(colours[i].count));
    auto& sum = sums[owner[i]];
    for (std::size_t k = 0; k < 4; ++k) sum[k] += w * colours[i].at[k];
    sum[4] += w;
  }
  for (std::size_t i = 0; i < centres.size(); ++i) {
    if (sums[i][4] == 0) continue;
    for (std::size_t k = 0; k < 4; ++k) {
      centres[i][k] = static_cast<float>(sums[i][k] / sums[i][4]);
    }
  }
  return centres;
}

PaletteEntry entry_of(const Vector& colour, Ground ground) {
  const double opacity = std::round(colour[3]);
  const double scale = opacity > 0 ? 255.0 / colour[3] : 0;
  const auto part = [&](std::size_t k) {
    return static_cast<std::uint8_t>(std::clamp(std::round(colour[k] * scale), 0.0, 255.0));
  };
  PaletteEntry entry{part(0), part(1), part(2), static_cast<std::uint8_t>(opacity)};
  if (ground != Ground::plate) entry.opacity = 0;
  // Pure black is the colour that is not drawn.
  if (ground != Ground::none && entry.blue == 0 && entry.green == 0 && entry.red == 0) entry.red = 1;
  return entry;
}

std::vector<Vector> best_centres(std::vector<Colour32>& colours, std::size_t most) {
  std::vector<Vector> centres;
  std::vector<std::size_t> owner(colours.size());
  for (const Cluster& c : clusters(colours, most)) {
    for (std::size_t i = c.from; i < c.to; ++i) owner[i] = centres.size();
    centres.emplace_back();
  }
  centres = centres_of(colours, owner, std::move(centres));
  if (colours.size() <= most) return centres;
  for (int round = 0; round < refinements; ++round) {
    for (std::size_t i = 0; i < colours.size(); ++i) owner[i] = nearest(centres, colours[i].at);
    centres = centres_of(colours, owner, std::move(centres));
  }
  return centres;
}

/// The palette index of every colour, in the order of their pixels' values.
std::vector<std::uint8_t> indices(std::vector<Colour32>& colours, const std::vector<Vector>& centres,
                                  std::size_t reserved) {
  std::sort(colours.begin(), colours.end(),
            [](const Colour32& a, const Colour32& b) { return a.pixel < b.pixel; });
  std::vector<std::uint8_t> index;
  for (const Colour32& colour : colours) {
    index.push_back(static_cast<std::uint8_t>(reserved + nearest(centres, colour.at)));
  }
  return index;
}

std::size_t rank(const std::vector<Colour32>& colours, std::uint32_t pixel) {
  const auto found = std::lower_bound(
      colours.begin(), colours.end(), pixel,
      [](const Colour32& colour, std::uint32_t value) { return colour.pixel < value; });
  return static_cast<std::size_t>(found - colours.begin());
}

}  // namespace

void make_opaque(Indexed& picture) {
  for (PaletteEntry& entry : picture.palette) {
    const bool black = entry.blue == 0 && entry.green == 0 && entry.red == 0;
    if (picture.ground == Ground::none || !black) entry.opacity = 255;
  }
}

Indexed indexed(const Canvas& canvas, Ground ground, std::size_t most_colours) {
  const std::vector<std::uint32_t> pixels = settled_pixels(canvas, ground);
  std::vector<Colour32> colours = counted(pixels);
  const Pixels from = canvas.pixels();
  Indexed picture{from.width, from.height, {}, {}, ground};
  if (ground != Ground::none) picture.palette.push_back({0, 0, 0, 0});
  const std::size_t reserved = picture.palette.size();
  std::vector<Vector> centres;
  if (!colours.empty()) centres = best_centres(colours, most_colours - reserved);
  for (const Vector& centre : centres) picture.palette.push_back(entry_of(centre, ground));
  const std::vector<std::uint8_t> index = indices(colours, centres, reserved);
  picture.pixels.reserve(pixels.size());
  for (const std::uint32_t pixel : pixels) {
    picture.pixels.push_back(pixel == 0 ? std::uint8_t{0} : index[rank(colours, pixel)]);
  }
  return picture;
}

Canvas full_colour(const Canvas& canvas, Ground ground) {
  // Without a palette nothing can be half clear: what is not a background is drawn or it is not.
  const Ground edges = ground == Ground::none ? ground : Ground::sprites;
  Canvas copy(canvas.size(), canvas.density(), canvas.seed());
  const Pixels from = canvas.pixels(), to = copy.pixels();
  for (int y = 0; y < from.height; ++y) {
    for (int x = 0; x < from.width; ++x) {
      const std::uint32_t pixel = settled(from.at(x, y), edges);
      to.at(x, y) = pixel == 0xFF000000u && edges != Ground::none ? 0xFF010000u : pixel;
    }
  }
  copy.touched();
  return copy;
}

}  // namespace artwork
