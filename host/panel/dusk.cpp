#include "host/panel/dusk.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/drawing/pixels.h"
#include "host/loader/element_chain.h"
#include "host/outside/daylight.h"
#include "host/simulation/base/numeric.h"

namespace host {
namespace {

using simulation::CurvePoint;

// By the sun's height in degrees: with the last light of dusk one still finds a switch.
constexpr std::array<CurvePoint, 4> day_by_sun{{{-12.0, 0.0}, {-6.0, 0.3}, {0.0, 0.8}, {5.0, 1.0}}};

// What the night leaves of red, green and blue, of 256.
constexpr std::array<int, 3> night{62, 68, 82};

// Of what shines: pixels up to the first are as dark as the metal beside them, from the second on as bright as by day.
constexpr int dim_bright = 90, full_bright = 170;

constexpr int channel(std::uint32_t pixel, int shift) {
  return static_cast<int>(pixel >> shift & 0xFF);
}

int brightness(std::uint32_t pixel) {
  return std::max({channel(pixel, 0), channel(pixel, 8), channel(pixel, 16)});
}

// Of 256, by red, green and blue.
using Shade = std::array<int, 3>;

Shade shade_of(int day) {
  Shade shade;
  for (std::size_t i = 0; i < shade.size(); ++i)
    shade[i] = night[i] + (256 - night[i]) * std::clamp(day, 0, full_day) / full_day;
  return shade;
}

std::uint32_t shaded(std::uint32_t pixel, const Shade& dark, const Shade& bright, int share) {
  std::uint32_t result = 0xFF000000;
  for (std::size_t i = 0; i < dark.size(); ++i) {
    const int shift = 16 - 8 * static_cast<int>(i);
    const int left = dark[i] + (bright[i] - dark[i]) * share / 256;
    result |= static_cast<std::uint32_t>(channel(pixel, shift) * left >> 8) << shift;
  }
  return result;
}

template <typename Work>
void each_pixel(Canvas& to, const Canvas& from, const Rect& wanted, Work work) {
  const Rect part = intersection(wanted, whole_of(from));
  for (int y = part.y; y < part.y + part.height; ++y) {
    const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(from.width);
    for (int x = part.x; x < part.x + part.width; ++x)
      to.pixels[row + static_cast<std::size_t>(x)] =
          work(from.pixels[row + static_cast<std::size_t>(x)]);
  }
}

// How bright an image is where it is painted, 0 to 255.
double light_of(const std::shared_ptr<const Bitmap>& image) {
  if (!image) return 0.0;
  double sum = 0.0, painted = 1.0;
  for (const std::uint32_t pixel : image->pixels) {
    sum += brightness(pixel);
    painted += pixel >> 24 > 127;
  }
  return sum / painted;
}

// A lamp is dark or lit in a few colours; what has more images has figures or a ball on them.
bool may_shine(const Element& icon) {
  constexpr u32 shines_by_itself = 0x4;
  return (icon.image_flags & shines_by_itself) && icon.icon.image_count >= 2 &&
         icon.icon.image_count <= 4;
}

// A lamp is lit where it shows more light than it can; a lever is as bright in each of its places.
std::vector<char> lit_images(const Element& icon, const BitmapStore& bitmaps) {
  constexpr double brighter = 1.25;
  std::vector<double> light;
  for (u32 image = 0; image < icon.icon.image_count; ++image)
    light.push_back(
        light_of(bitmaps.find(static_cast<u32>(icon.resource_id) + image, BitmapUse::image)));
  const double darkest = light.empty() ? 0.0 : *std::ranges::min_element(light);
  std::vector<char> lit;
  for (const double each : light) lit.push_back(each > brighter * darkest);
  return lit;
}

}  // namespace

int daylight_on_panels(const Cockpit& cockpit) {
  if (cockpit.panel_lights_on()) return full_day;
  const double sun_up = outside::daylight_at(cockpit.aircraft().time_of_day_s()).sun_up_deg;
  return static_cast<int>(std::lround(full_day * simulation::on_curve(day_by_sun, sun_up)));
}

bool is_dark(const Cockpit& cockpit) {
  return cockpit.panel_lights_on() || daylight_on_panels(cockpit) < full_day / 2;
}

SelfLit::SelfLit(const CockpitGauge& gauge, const BitmapStore& bitmaps) {
  const std::vector<ChainLink> chain = element_chain(gauge.header());
  for (std::size_t i = 0; i < chain.size(); ++i) {
    const Element& element = *chain[i].element;
    if (element.kind == ELEMENT_STRING) texts_.push_back(i);
    if (element.kind != ELEMENT_ICON || element.resource_id < 0) continue;
    const PanelSize size = bitmaps.size(static_cast<u32>(element.resource_id));
    // What is as large as its face is the instruments' own light.
    if (size.width == gauge.size.width && size.height == gauge.size.height &&
        element.icon.image_count == 3)
      floods_.push_back(i);
    else if (may_shine(element))
      lamps_.push_back({i,
                        {element.position.x, element.position.y, size.width, size.height},
                        lit_images(element, bitmaps)});
  }
  std::erase_if(lamps_, [](const Lamp& lamp) { return std::ranges::count(lamp.lit, 1) == 0; });
}

double SelfLit::face(const CockpitGauge& gauge) const {
  double light = 0.0;
  for (const std::size_t part : floods_)
    if (const ElementState& state = gauge.run.now()[part]; state.drawn && state.values[0] >= 1.0)
      light = std::max(light, state.values[0] >= 2.0 ? 0.9 : 0.6);
  return light;
}

std::vector<Rect> SelfLit::shining(const CockpitGauge& gauge) const {
  std::vector<Rect> boxes;
  for (const Lamp& lamp : lamps_) {
    const ElementState& state = gauge.run.now()[lamp.part];
    const double image = std::trunc(state.values[0]);
    if (!state.drawn || !(image >= 0.0)) continue;
    if (lamp.lit[static_cast<std::size_t>(std::min(image, lamp.lit.size() - 1.0))])
      boxes.push_back(lamp.box);
  }
  for (const std::size_t part : texts_) {
    const ElementState& state = gauge.run.now()[part];
    if (!state.drawn) continue;
    const Element& text = *state.element;
    boxes.push_back(
        {text.position.x, text.position.y, text.string.size.width, text.string.size.height});
  }
  return boxes;
}

void darken(Canvas& to, const Canvas& from, const Rect& part, int day) {
  const Shade shade = shade_of(day);
  each_pixel(to, from, part, [&](std::uint32_t pixel) { return shaded(pixel, shade, shade, 0); });
}

void darken_lit(Canvas& to, const Canvas& from, const Rect& part, int day, int bright_day,
                double floor) {
  const Shade dark = shade_of(day), bright = shade_of(bright_day);
  const int least = static_cast<int>(std::lround(256 * floor));
  each_pixel(to, from, part, [&](std::uint32_t pixel) {
    const int share = (brightness(pixel) - dim_bright) * 256 / (full_bright - dim_bright);
    return shaded(pixel, dark, bright, std::clamp(share, least, 256));
  });
}

}  // namespace host
