#include "host/app/badge_places.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "host/panel/panel_picture.h"

namespace host {
namespace {

constexpr int nearest = 1, farthest = 160, step = 3;  // pixels between a box and its badge

// Legends and pictures stand out from the plate by this much in one of the colours.
constexpr int readable = 48;
// So many pixels of distance a badge goes to leave all of what it would hide to be read.
constexpr double most_detour = 60;

// The places at one distance from a box.
std::array<Rect, 12> places_around(const Rect& box, PanelSize size, int away) {
  const int left = box.x, right = box.x + box.width - size.width;
  const int top = box.y, bottom = box.y + box.height - size.height;
  const int middle = (left + right) / 2, center = (top + bottom) / 2;
  const int above = box.y - away - size.height, below = box.y + box.height + away;
  const int before = box.x - away - size.width, behind = box.x + box.width + away;
  std::array<Rect, 12> places{};
  const std::array<PanelPoint, 12> corners{{{left, above},
                                            {right, above},
                                            {middle, above},
                                            {before, top},
                                            {behind, top},
                                            {before, center},
                                            {behind, center},
                                            {before, bottom},
                                            {behind, bottom},
                                            {left, below},
                                            {right, below},
                                            {middle, below}}};
  std::ranges::transform(corners, places.begin(), [&](PanelPoint corner) {
    return Rect{corner.x, corner.y, size.width, size.height};
  });
  return places;
}

bool is_inside(const Rect& place, const Canvas& picture) {
  return place.x >= 0 && place.y >= 0 && place.x + place.width <= picture.width &&
         place.y + place.height <= picture.height;
}

int green_at(const Canvas& picture, int x, int y) {
  return static_cast<int>(picture.pixels[std::size_t(y) * picture.width + x] >> 8 & 255);
}

// The part of a place that differs from what most of it looks like, 0 to 1.
double to_read(const Canvas& picture, const Rect& place) {
  std::vector<int> greens;
  for (int y = place.y; y < place.y + place.height; ++y)
    for (int x = place.x; x < place.x + place.width; ++x) greens.push_back(green_at(picture, x, y));
  const auto middle = greens.begin() + static_cast<std::ptrdiff_t>(greens.size() / 2);
  std::ranges::nth_element(greens, middle);
  const int plate = *middle;
  const auto differs = [&](int green) { return std::abs(green - plate) > readable; };
  return static_cast<double>(std::ranges::count_if(greens, differs)) /
         static_cast<double>(greens.size());
}

// Looks for one badge after the other.
class Search {
 public:
  Search(std::span<const Rect> boxes, const Canvas& picture) : boxes_(boxes), picture_(picture) {}

  Rect place(const Rect& box, PanelSize size) {
    Rect best{box.x, box.y, size.width, size.height};
    double least = 1e9;
    for (int away = nearest; away <= farthest && away < least; away += step)
      for (const Rect& place : places_around(box, size, away)) {
        if (!is_free(place)) continue;
        const double cost = away + most_detour * to_read(picture_, place);
        if (cost < least) least = cost, best = place;
      }
    taken_.push_back(best);
    return best;
  }

 private:
  bool is_free(const Rect& place) const {
    const auto hits = [&](const Rect& other) { return overlap(place, other); };
    return is_inside(place, picture_) && std::ranges::none_of(boxes_, hits) &&
           std::ranges::none_of(taken_, hits);
  }

  std::span<const Rect> boxes_;
  const Canvas& picture_;
  std::vector<Rect> taken_;
};

}  // namespace

std::vector<Rect> place_badges(std::span<const Rect> boxes, std::span<const PanelSize> sizes,
                               const Canvas& picture) {
  Search search(boxes, picture);
  std::vector<Rect> places;
  for (std::size_t i = 0; i < boxes.size(); ++i) places.push_back(search.place(boxes[i], sizes[i]));
  return places;
}

}  // namespace host
