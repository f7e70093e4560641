/// Printed scales and needles share one calibration.
#include <gtest/gtest.h>

#include <cmath>

#include "resources/rows/draw.h"
#include "resources/rows/overloaded.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

/// Every dial of every plate.
struct DialOf {
  const GaugeHeader& gauge;
  const Dial& dial;
};

std::vector<DialOf> all_dials() {
  std::vector<DialOf> found;
  for (const NamedUnit& named : units()) {
    for (const Art& art : named.unit.art) {
      const auto* plate = std::get_if<Plate>(&art.picture);
      if (plate == nullptr) continue;
      for (const Item& item : plate->items) {
        if (const auto* dial = std::get_if<Dial>(&item))
          found.push_back({*gauge_of(named.unit), *dial});
      }
    }
  }
  return found;
}

template <class Check>
void for_each_scale(Check check) {
  for (const DialOf& each : all_dials()) {
    for (const Scale& scale : each.dial.scales) {
      check(each, scale, part(each.gauge, scale.needle), std::string(scale.needle));
    }
  }
}

std::vector<double> readings(const Print& print) {
  std::vector<double> all;
  std::visit(overloaded{[&](const Marks& m) {
                          all = {m.from, m.to};
                        },
                        [&](const MarksAt& m) { all.assign(m.values.begin(), m.values.end()); },
                        [&](const Limit& limit) { all = {limit.at}; },
                        [&](const Figures& f) {
                          for (const Figure& each : f.figures) all.push_back(each.value);
                        },
                        [&](const auto& span) {
                          all = {span.from, span.to};
                        }},
             print);
  return all;
}

/// A calibration with one wrong point, or a scale whose unit is wrong, would show here.
TEST(Scales, LieInTheNeedlesRangeOnACircleAboutItsPivot) {
  for_each_scale([](const DialOf&, const Scale& scale, const Element& needle, const std::string& name) {
    const std::span table(needle.needle.table, needle.needle.table_length);
    double nearest = 1e9, farthest = 0;
    for (const NonlinearityPoint& each : table) {
      const double distance =
          std::hypot(each.point.x - needle.position.x, each.point.y - needle.position.y);
      nearest = std::min(nearest, distance), farthest = std::max(farthest, distance);
    }
    EXPECT_LT(farthest, 1.35 * nearest) << name;
    for (const Print& print : scale.print) {
      for (const double reading : readings(print)) {
        const double value = (reading - scale.zero) * scale.per;
        EXPECT_GE(value, table.front().value - 1e-6) << name << ' ' << reading;
        EXPECT_LE(value, table.back().value + 1e-6) << name << ' ' << reading;
      }
    }
  });
}

/// The room of figures and words: on the face, clear of one another.
TEST(Scales, KeepTheirFiguresOnTheFace) {
  for (const int density : {1, 2, 3}) {
    for (const DialOf& each : all_dials()) {
      const Canvas canvas(plate_of(each.gauge).size, density, 0);
      draw_dial({canvas, each.gauge}, each.dial);
      const Point pivot = middle_of(each.gauge, each.dial);
      for (const Box& room : canvas.words()) {
        const double x = std::max(std::abs(room.x - pivot.x), std::abs(room.right() - pivot.x));
        const double y = std::max(std::abs(room.y - pivot.y), std::abs(room.bottom() - pivot.y));
        EXPECT_LT(std::hypot(x, y), each.dial.radius - each.dial.bezel)
            << each.gauge.name << ' ' << text(room) << " at " << density;
      }
    }
  }
}

double brightest_about(const Canvas& canvas, Point at) {
  const double density = canvas.density();
  double most = 0;
  for_each_pixel(canvas, {std::floor(at.x * density) - 1, std::floor(at.y * density) - 1, 3, 3},
                 [&](std::uint32_t pixel, int, int) { most = std::max(most, luminance(pixel)); });
  return most;
}

/// A limit's red line lies over the mark.
bool has_limit_at(const Scale& scale, double reading) {
  return std::ranges::any_of(scale.print, [&](const Print& print) {
    const auto* limit = std::get_if<Limit>(&print);
    return limit != nullptr && limit->at == reading;
  });
}

/// Looked up in the picture, so that nothing but the needle's own record says where a mark stands.
TEST(Scales, HaveABrightMarkWhereTheNeedlePoints) {
  for_each_scale([](const DialOf& of, const Scale& scale, const Element& needle,
                    const std::string& name) {
    const Canvas canvas(plate_of(of.gauge).size, 3, 0);
    draw_dial({canvas, of.gauge}, of.dial);
    const double rim = scale.rim == 0 ? of.dial.radius - 5.6 : scale.rim;
    for (const Print& print : scale.print) {
      const auto* marks = std::get_if<Marks>(&print);
      if (marks == nullptr || has_limit_at(scale, marks->from + marks->step)) continue;
      const double value = (marks->from + marks->step - scale.zero) * scale.per;
      const double radius = rim - 0.7 * marks->length;
      EXPECT_GT(
          brightest_about(canvas, polar(turning_point(needle), radius, needle_angle(needle, value))),
          140)
          << of.gauge.name << ' ' << name << ' ' << value;
    }
  });
}

}  // namespace
}  // namespace artwork_test
