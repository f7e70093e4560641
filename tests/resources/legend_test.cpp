/// Words on plates and dials: none meets another or a mark, leaves its plate, or lies under a part.
#include <gtest/gtest.h>

#include "resources/kit/legend.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

bool meet(const Box& a, const Box& b) {
  return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

/// Whether a mark comes into the room of words: tried at points along it.
bool meet(const Segment& mark, const Box& room) {
  for (double share = 0; share <= 1; share += 0.05) {
    const double x = mark.from.x + share * (mark.to.x - mark.from.x);
    const double y = mark.from.y + share * (mark.to.y - mark.from.y);
    if (meet(room, {x, y, 0.01, 0.01})) return true;
  }
  return false;
}

/// How many solid pixels of a picture lie in a box of its own pixels.
int solid_pixels(const Canvas& picture, Box box) {
  const double density = picture.density();
  int count = 0;
  for_each_pixel(picture, {box.x * density, box.y * density, box.width * density, box.height * density},
                 [&](std::uint32_t pixel, int, int) { count += pixel >> 24 > 160; });
  return count;
}

struct DrawnPlate {
  const GaugeHeader& of;
  Canvas canvas;
};

template <class Check>
void for_each_plate(int density, Check check) {
  for (const GaugeHeader* each : gauges()) check(DrawnPlate{*each, drawn(plate_of(*each), density)});
}

TEST(Words, KeepApartAndOnThePlate) {
  for (const int density : {1, 3}) {
    for_each_plate(density, [&](const DrawnPlate& plate) {
      const std::vector<Box>& words = plate.canvas.words();
      const Box inside = whole(plate.canvas.size()).grown(-1);
      for (std::size_t i = 0; i < words.size(); ++i) {
        EXPECT_TRUE(words[i].x >= inside.x && words[i].right() <= inside.right() &&
                    words[i].y >= inside.y && words[i].bottom() <= inside.bottom())
            << plate.of.name << ": words at " << text(words[i]) << " leave the plate";
        for (std::size_t j = i + 1; j < words.size(); ++j) {
          EXPECT_FALSE(meet(words[i], words[j].grown(0.5)))
              << plate.of.name << ": words at " << text(words[i]) << " meet " << text(words[j])
              << " at " << density << " times";
        }
        for (const Segment& mark : plate.canvas.marks()) {
          EXPECT_FALSE(meet(mark, words[i])) << plate.of.name << ": words at " << text(words[i])
                                             << " meet a mark at " << density << " times";
        }
      }
    });
  }
}

TEST(Words, LieUnderNoMovingPart) {
  for_each_plate(2, [&](const DrawnPlate& plate) {
    for (const Element* e : parts(plate.of)) {
      if (e->kind != ELEMENT_ICON) continue;
      const Bitmap* first = find_bitmap(e->resource_id);
      // The lighting shows the face itself, so the words on it are its own; and a picture as large as its
      // plate hides the one that two gauges share.
      if (first == nullptr || first->overlay || first->size == plate.canvas.size()) continue;
      for (u32 image = 0; image < e->icon.image_count; ++image) {
        const Bitmap* bitmap = find_bitmap(e->resource_id + static_cast<int>(image));
        const Canvas picture = drawn(*bitmap, 2);
        for (Box room : plate.canvas.words()) {
          room.x -= e->position.x, room.y -= e->position.y;
          // A lamp that comes on over its dark lens says the same.
          if (std::ranges::any_of(picture.words(), [&](Box own) { return meet(own, room); })) continue;
          EXPECT_LE(solid_pixels(picture, room.grown(-0.5)), 2)
              << plate.of.name << ": " << subject(*bitmap) << " covers words";
        }
      }
    }
  });
}

/// Words that fit their lens at one density and not at another would be cut by its frame.
TEST(Words, FitTheirPictures) {
  for (const Bitmap& bitmap : bitmap_table()) {
    if (bitmap.background) continue;
    // The figures of a drum fill it from seam to seam, and so does a figure its own window; those of a ball
    // and a card go on behind the face.
    const Picture* picture = &bitmap.art->picture;
    if (picture != nullptr && std::holds_alternative<Ball>(*picture)) continue;
    const bool drum = picture != nullptr && std::holds_alternative<Drum>(*picture);
    const double edge = drum || bitmap.size.width <= 10 ? 0.4 : 2;
    for (const int density : {1, 2, 3}) {
      const Canvas canvas = drawn(bitmap, density);
      for (const Box& room : canvas.words()) {
        EXPECT_GE(room.x, edge) << subject(bitmap) << " at " << density;
        EXPECT_LE(room.right(), bitmap.size.width - edge) << subject(bitmap) << " at " << density;
      }
    }
  }
}

TEST(Words, StandWhereTheyAreAnchored) {
  const Canvas canvas({100, 40}, 3, 1);
  print(canvas, {50, 20}, "GEN", {.size = 9}, Anchor::right);
  print(canvas, {50, 30}, "GEN", {.size = 9}, Anchor::left);
  print(canvas, {50, 10}, "GEN", {.size = 9}, Anchor::centre);
  const std::vector<Box>& words = canvas.words();
  EXPECT_NEAR(words[0].right(), 50, 0.5);
  EXPECT_NEAR(words[1].x, 50, 0.5);
  EXPECT_NEAR(words[2].centre().x, 50, 0.5);
  EXPECT_NEAR(words[2].centre().y, 10, 0.5);
}

}  // namespace
}  // namespace artwork_test
