/// A row of artwork: which bitmaps one drawing routine makes.
#pragma once

#include <span>
#include <string_view>

#include "resources/kit/canvas.h"

namespace artwork {

/// Draws image number `image` of a run of bitmaps. The canvas has the row's size.
using DrawRoutine = void (*)(Canvas& canvas, int image);

struct Art {
  int id;      ///< of the first bitmap
  int images;  ///< bitmaps, numbered from `id` on
  Size size;   ///< in gauge pixels; {} where `like` says it
  DrawRoutine draw;
  std::string_view shows;  ///< for the list of bitmaps
  int like = 0;            ///< the background whose size these pictures have
};

/// A finished background; its size stands in the table of backgrounds.
constexpr Art background(int id, DrawRoutine draw, std::string_view shows) {
  return {id, 1, {}, draw, shows, id};
}

/// The three pictures of a gauge's instrument lighting: off, dim, bright.
constexpr Art lighting_overlay(int id, int background_id, DrawRoutine draw, std::string_view shows) {
  return {id, 3, {}, draw, shows, background_id};
}

}  // namespace artwork
