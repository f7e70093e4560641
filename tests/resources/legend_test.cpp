/// Words on plates and dials: none meets another or a mark, leaves its plate, or lies under a part.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "resources/bitmap_table.h"
#include "resources/kit/legend.h"
#include "resources/kit/records.h"

namespace artwork {
namespace {

const Bitmap* find(const std::vector<Bitmap>& table, int id) {
  const auto found =
      std::find_if(table.begin(), table.end(), [=](const Bitmap& b) { return b.id == id; });
  return found == table.end() ? nullptr : &*found;
}

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

std::string text(const Box& box) {
  const auto whole_text = [](double value) { return std::to_string(static_cast<int>(value)); };
  return "words at " + whole_text(box.x) + ',' + whole_text(box.y) + " (" + whole_text(box.width) +
         " wide)";
}

/// How many solid pixels of a picture lie in a box of its own pixels.
int solid_pixels(const Canvas& picture, Box box) {
  const Pixels pixels = picture.pixels();
  const double density = picture.density();
  int count = 0;
  for (int y = std::max(0, static_cast<int>(box.y * density)); y < box.bottom() * density; ++y) {
    for (int x = std::max(0, static_cast<int>(box.x * density)); x < box.right() * density; ++x) {
      if (x < pixels.width && y < pixels.height) count += pixels.at(x, y) >> 24 > 160;
    }
  }
  return count;
}

/// A gauge's lighting overlay shows the face itself, so the words on it are its own.
bool covers_face(const Element& e, const Bitmap& plate, const Bitmap& picture) {
  return e.position.x == 0 && e.position.y == 0 && picture.size == plate.size;
}

struct Plate {
  const GaugeHeader& of;
  const Bitmap& bitmap;
  Canvas canvas;
};

template <class Check>
void for_each_plate(int density, Check check) {
  const std::vector<Bitmap> table = bitmap_table();
  for (const GaugeHeader* each : gauges()) {
    const Bitmap* bitmap = find(table, each->element_list[0]->resource_id);
    if (bitmap != nullptr) check(table, Plate{*each, *bitmap, drawn(*bitmap, density)});
  }
}

TEST(Words, KeepApartAndOnThePlate) {
  for (const int density : {1, 3}) {
    for_each_plate(density, [&](const std::vector<Bitmap>&, const Plate& plate) {
      const std::vector<Box>& words = plate.canvas.words();
      const Box inside = whole(plate.canvas.size()).grown(-1);
      for (std::size_t i = 0; i < words.size(); ++i) {
        EXPECT_TRUE(words[i].x >= inside.x && words[i].right() <= inside.right() &&
                    words[i].y >= inside.y && words[i].bottom() <= inside.bottom())
            << plate.of.name << ": " << text(words[i]) << " leave the plate";
        for (std::size_t j = i + 1; j < words.size(); ++j) {
          EXPECT_FALSE(meet(words[i], words[j].grown(0.5)))
              << plate.of.name << ": " << text(words[i]) << " meet " << text(words[j]) << " at "
              << density << " times";
        }
        for (const Segment& mark : plate.canvas.marks()) {
          EXPECT_FALSE(meet(mark, words[i]))
              << plate.of.name << ": " << text(words[i]) << " meet a mark at " << density << " times";
        }
      }
    });
  }
}

TEST(Words, LieUnderNoMovingPart) {
  for_each_plate(2, [&](const std::vector<Bitmap>& table, const Plate& plate) {
    for (const Element* e : parts(plate.of)) {
      if (e->kind != ELEMENT_ICON) continue;
      const Bitmap* first = find(table, e->resource_id);
      if (first == nullptr || covers_face(*e, plate.bitmap, *first)) continue;
      for (u32 image = 0; image < e->icon.image_count; ++image) {
        const Bitmap* bitmap = find(table, e->resource_id + static_cast<int>(image));
        if (bitmap == nullptr) continue;
        const Canvas picture = drawn(*bitmap, 2);
        for (Box room : plate.canvas.words()) {
          room.x -= e->position.x, room.y -= e->position.y;
          EXPECT_LE(solid_pixels(picture, room.grown(-0.5)), 2)
              << plate.of.name << ": part " << bitmap->id << " covers words";
        }
      }
    }
  });
}

/// Words that fit their lens at one density and not at another would be cut by its frame.
TEST(Words, FitTheirPictures) {
  for (const Bitmap& bitmap : bitmap_table()) {
    if (bitmap.background) continue;
    for (const int density : {1, 2, 3}) {
      const Canvas canvas = drawn(bitmap, density);
      for (const Box& room : canvas.words()) {
        EXPECT_GE(room.x, 2) << bitmap.id << " at " << density;
        EXPECT_LE(room.right(), bitmap.size.width - 2) << bitmap.id << " at " << density;
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
}  // namespace artwork
