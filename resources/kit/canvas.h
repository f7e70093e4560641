/// A picture while it is drawn: cairo in gauge pixels, with `density` device pixels to each.
#pragma once

#include <cairo.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "resources/kit/geometry.h"

namespace artwork {

/// Device pixels, premultiplied, as cairo keeps them: 0xAARRGGBB.
struct Pixels {
  std::uint32_t* data;
  int width;
  int height;
  int stride;  ///< in pixels

  std::uint32_t& at(int x, int y) const { return data[y * stride + x]; }
};

/// Owns its surface. Starts fully transparent.
class Canvas {
 public:
  Canvas(Size size, int density, std::uint32_t seed);

  cairo_t* cr() const { return context_.get(); }
  Size size() const { return size_; }
  int density() const { return density_; }
  /// Tells one picture's grain and wear from another's, and is the same at every build.
  std::uint32_t seed() const { return seed_; }
  /// One device pixel in gauge pixels: the thinnest sharp line.
  double hairline() const { return 1.0 / density_; }
  /// The nearest place on the device grid.
  double snapped(double at) const;
  /// The room of each line of words so far, so that a check can tell whether any meets another.
  const std::vector<Box>& words() const { return words_; }
  void note_words(Box room) const { words_.push_back(room); }
  /// The marks of all scales so far, likewise.
  const std::vector<Segment>& marks() const { return marks_; }
  void note_mark(Segment mark) const { marks_.push_back(mark); }
  /// The pixels drawn so far. Call `touched` after writing to them.
  Pixels pixels() const;
  void touched() const;

 private:
  struct Release {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_t* context) const { cairo_destroy(context); }
  };
  Size size_;
  int density_;
  std::uint32_t seed_;
  mutable std::vector<Box> words_;
  mutable std::vector<Segment> marks_;
  std::unique_ptr<cairo_surface_t, Release> surface_;
  std::unique_ptr<cairo_t, Release> context_;
};

/// Restores cairo's state at the end of a scope.
class Saved {
 public:
  explicit Saved(const Canvas& canvas) : context_(canvas.cr()) { cairo_save(context_); }
  ~Saved() { cairo_restore(context_); }
  Saved(const Saved&) = delete;
  Saved& operator=(const Saved&) = delete;

 private:
  cairo_t* context_;
};

}  // namespace artwork
